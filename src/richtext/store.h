// The contents of a rich text: a list of pieces, each shared between copies of
// the text until one of them changes it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "QZCore/richtext/rich_text.h"
#include "richtext/attribute_palette.h"
#include "richtext/flat_text.h"
#include "richtext/number_map.h"
#include "richtext/piece.h"

namespace QZCore {

class RichText::Store {
public:
    /// Where a unit stands: its piece, and the position at which that starts.
    struct Place {
        std::size_t piece = 0;
        std::size_t pieceStart = 0;
    };

    Store() = default;

    [[nodiscard]] std::size_t length() const { return length_; }
    [[nodiscard]] std::size_t numberOfPieces() const { return pieces_.size(); }
    [[nodiscard]] const Piece& piece(std::size_t index) const { return *pieces_[index]; }
    [[nodiscard]] const AttributePalette& palette() const { return palette_; }

    /// The piece that holds the unit at `index`, which must be below the
    /// length.
    [[nodiscard]] Place placeOf(std::size_t index) const;

    /// Asks `test` about each different set of attributes, in order of
    /// appearance, until it says yes, and returns whether it did.
    template <class Test>
    [[nodiscard]] bool anySet(Test test) const;

    // ---- Building from the start to the end ----

    /// Adds `text` with `attributes` at the end.
    void append(StringView text, const TextAttributes& attributes);
    /// Adds the units of `range` of another store at the end.
    void append(const Store& other, Range range);
    /// Takes over numbered attributes, before anything is appended.
    void setPalette(AttributePalette palette) { palette_ = std::move(palette); }
    /// Adds `text` with the numbered attributes `id` at the end.
    void appendNumbered(StringView text, std::uint32_t id);
    /// Adds `text` with numbered runs, which partition it, at the end.
    void append(StringView text, std::span<const FlatRun> runs);
    /// Is to be called once after building.
    void finishBuilding() { sumUp(); }

    // ---- Editing; ranges must lie within the length ----

    /// Replaces `range` by `text` with `attributes`.
    void replace(Range range, StringView text, const TextAttributes& attributes);
    /// Replaces `range` by the units of `otherRange` of another store.
    void replace(Range range, const Store& other, Range otherRange);
    /// Replaces the attributes of every run within `range` by what `change`
    /// gives for them; `change` is asked once for each different set.
    template <class Change>
    void changeAttributes(Range range, Change change);
    /// Replaces the attributes of the units from `location` on by those of
    /// `runs`.
    void setAttributes(std::size_t location, const FlatRuns& runs);

private:
    // Lengths are summed up for so many pieces at a time.
    static constexpr std::size_t kGroup = 64;

    template <class Use>
    void eachRun(Range range, Use use) const;
    Piece& changeablePiece(std::size_t index);
    void erase(Range range);
    void insert(std::size_t index, StringView text, std::uint32_t id);
    std::size_t divideAt(std::size_t index);
    void joinSmall(std::size_t piece);
    void splice(std::size_t index, const Store& addition);
    void lengthChanged(std::size_t piece);
    void sumUp();
    void collectAttributes();

    std::vector<std::shared_ptr<Piece>> pieces_;
    std::vector<std::uint32_t> lengths_;  // of the pieces, close together
    std::vector<std::size_t> groupSums_;
    std::size_t length_ = 0;
    AttributePalette palette_;
};

template <class Test>
bool RichText::Store::anySet(Test test) const {
    std::vector<bool> seen(palette_.size(), false);
    for (const std::shared_ptr<Piece>& piece : pieces_) {
        for (const PieceRun& run : piece->runs()) {
            if (seen[run.id]) continue;
            seen[run.id] = true;
            if (test(palette_.at(run.id))) return true;
        }
    }
    return false;
}

template <class Change>
void RichText::Store::changeAttributes(Range range, Change change) {
    if (range.length == 0) return;
    collectAttributes();
    NumberMap numbers;
    const auto newId = [&](std::uint32_t id) {
        return numbers(id, [&](std::uint32_t old) {
            // A copy: the palette may move while the new set is added.
            const TextAttributes before = palette_.at(old);
            return palette_.idOf(change(before));
        });
    };
    Place place = placeOf(range.location);
    std::size_t at = range.location;
    for (; at < range.end(); ++place.piece) {
        Piece& piece = changeablePiece(place.piece);
        const std::size_t from = at - place.pieceStart;
        const std::size_t to = std::min(range.end() - place.pieceStart, piece.length());
        piece.changeIds(from, to, newId);
        at = place.pieceStart + to;
        place.pieceStart += piece.length();
    }
}

template <class Change>
void RichText::changeAttributes(Range range, Change change) {
    range = clampedRange(range, length());
    noteEdit(range, range.length);
    changeableStore().changeAttributes(range, change);
}

/// The way to ask about all runs, and to change those of a range, in one go.
struct AttributeSweep {
    /// Whether `test` says yes for some set of attributes in `text`. It is asked
    /// once for each different set, in order of appearance, until it does.
    template <class Test>
    [[nodiscard]] static bool any(const RichText& text, Test test) {
        return text.store_->anySet(test);
    }
    /// Gives each run of `range` what `change` makes of its attributes. `change`
    /// is asked once for each different set.
    template <class Change>
    static void change(RichText& text, Range range, Change change) {
        text.changeAttributes(range, change);
    }
};

}  // namespace QZCore
