#include "richtext/flat_text.h"

#include <utility>

#include "richtext/store.h"

namespace QZCore {

FlatText FlatTextAccess::flattened(const RichText& text, Range range, AttributePalette palette) {
    return {flattenedRuns(text, range, std::move(palette)), text.string(range)};
}

FlatRuns FlatTextAccess::flattenedRuns(const RichText& text, Range range,
                                       AttributePalette palette) {
    FlatRuns flat;
    flat.palette = std::move(palette);
    range = clampedRange(range, text.length());
    if (range.length == 0) return flat;
    const RichText::Store& store = *text.store_;
    NumberMap numbers;  // only sets that the range uses get a number
    const auto number = [&](std::uint32_t id) {
        return numbers(
            id, [&](std::uint32_t old) { return flat.palette.idOf(store.palette().at(old)); });
    };
    RichText::Store::Place place = store.placeOf(range.location);
    std::size_t run = store.piece(place.piece).runAt(range.location - place.pieceStart);
    for (std::size_t at = range.location; at < range.end(); ++place.piece, run = 0) {
        const Piece& piece = store.piece(place.piece);
        for (; run < piece.runs().size() && at < range.end(); ++run) {
            at = std::min(place.pieceStart + piece.runEnd(run), range.end());
            appendRun(flat.runs, static_cast<std::uint32_t>(at - range.location),
                      number(piece.runs()[run].id));
        }
        place.pieceStart += piece.length();
    }
    return flat;
}

void FlatTextAccess::replaceRuns(RichText& text, std::size_t location, const FlatRuns& runs) {
    if (runs.runs.empty()) return;
    const std::size_t length = runs.runs.back().end;
    text.noteEdit({location, length}, length);
    text.changeableStore().setAttributes(location, runs);
}

void FlatTextAccess::replaceContents(RichText& text, std::vector<FlatText> parts,
                                     AttributePalette palette) {
    std::size_t length = 0;
    for (const FlatText& part : parts) length += part.text.size();
    text.noteEdit({0, text.length()}, length);
    auto store = std::make_shared<RichText::Store>();
    store->setPalette(std::move(palette));
    for (FlatText& part : parts) {
        store->append(part.text, part.runs);
        part = {};
    }
    store->finishBuilding();
    text.store_ = std::move(store);
}

}  // namespace QZCore
