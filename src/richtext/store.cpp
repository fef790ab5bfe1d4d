#include "richtext/store.h"

#include <algorithm>
#include <numeric>

namespace QZCore {
namespace {

// Pieces shorter than this are joined with a neighbour where the sum leaves
// room for edits, and texts as short are put in run by run.
constexpr std::size_t kSmall = 512;

}  // namespace

RichText::Store::Place RichText::Store::placeOf(std::size_t index) const {
    Place place;
    std::size_t group = 0;
    while (index - place.pieceStart >= groupSums_[group]) place.pieceStart += groupSums_[group++];
    place.piece = group * kGroup;
    while (index - place.pieceStart >= lengths_[place.piece]) {
        place.pieceStart += lengths_[place.piece++];
    }
    return place;
}

void RichText::Store::append(StringView text, const TextAttributes& attributes) {
    if (!text.empty()) appendNumbered(text, palette_.idOf(attributes));
}

void RichText::Store::appendNumbered(StringView text, std::uint32_t id) {
    while (!text.empty()) {
        if (pieces_.empty() || pieces_.back()->length() >= Piece::kFill) {
            const bool isLong = !pieces_.empty();
            pieces_.push_back(std::make_shared<Piece>());
            if (isLong || text.size() >= Piece::kFill) pieces_.back()->reserve(Piece::kFill);
            lengths_.push_back(0);
        }
        const std::size_t taken = std::min(Piece::kFill - lengths_.back(), text.size());
        pieces_.back()->append(text.substr(0, taken), id);
        lengths_.back() += static_cast<std::uint32_t>(taken);
        length_ += taken;
        text.remove_prefix(taken);
    }
}

void RichText::Store::append(StringView text, std::span<const FlatRun> runs) {
    pieces_.reserve(pieces_.size() + text.size() / Piece::kFill + 1);
    std::size_t run = 0;
    for (std::size_t start = 0; start < text.size(); start += Piece::kFill) {
        const StringView part = text.substr(start, Piece::kFill);
        const std::size_t end = start + part.size();
        const auto last = std::ranges::lower_bound(runs.subspan(run), end, {}, &FlatRun::end);
        std::vector<PieceRun> partRuns;
        partRuns.reserve(static_cast<std::size_t>(last - runs.subspan(run).begin()) + 1);
        partRuns.push_back({0, runs[run].id});
        for (; runs[run].end < end; ++run) {
            const auto runStart = static_cast<std::uint32_t>(runs[run].end - start);
            partRuns.push_back({runStart, runs[run + 1].id});
        }
        if (runs[run].end == end) ++run;
        pieces_.push_back(std::make_shared<Piece>(String(part), std::move(partRuns)));
        lengths_.push_back(static_cast<std::uint32_t>(part.size()));
        length_ += part.size();
    }
}

template <class Use>
void RichText::Store::eachRun(Range range, Use use) const {
    if (range.length == 0) return;
    Place place = placeOf(range.location);
    for (std::size_t at = range.location; at < range.end();) {
        const Piece& piece = this->piece(place.piece);
        const std::size_t offset = at - place.pieceStart;
        if (offset == piece.length()) {
            place.pieceStart += piece.length();
            ++place.piece;
            continue;
        }
        const std::size_t run = piece.runAt(offset);
        const std::size_t end = std::min(place.pieceStart + piece.runEnd(run), range.end());
        use(StringView(piece.text()).substr(offset, end - at), piece.runs()[run].id);
        at = end;
    }
}

void RichText::Store::append(const Store& other, Range range) {
    NumberMap numbers;
    other.eachRun(range, [&](StringView text, std::uint32_t theirs) {
        const std::uint32_t id = numbers(
            theirs, [&](std::uint32_t old) { return palette_.idOf(other.palette_.at(old)); });
        appendNumbered(text, id);
    });
}

void RichText::Store::replace(Range range, StringView text, const TextAttributes& attributes) {
    collectAttributes();
    erase(range);
    if (!text.empty()) insert(range.location, text, palette_.idOf(attributes));
}

void RichText::Store::replace(Range range, const Store& other, Range otherRange) {
    collectAttributes();
    erase(range);
    if (otherRange.length <= kSmall) {
        std::size_t at = range.location;
        other.eachRun(otherRange, [&](StringView text, std::uint32_t id) {
            insert(at, text, palette_.idOf(other.palette_.at(id)));
            at += text.size();
        });
        return;
    }
    Store addition;
    addition.palette_ = std::move(palette_);
    addition.append(other, otherRange);
    palette_ = std::move(addition.palette_);
    splice(range.location, addition);
}

void RichText::Store::setAttributes(std::size_t location, const FlatRuns& runs) {
    collectAttributes();
    NumberMap numbers;
    const auto number = [&](std::uint32_t id) {
        return numbers(id,
                       [&](std::uint32_t other) { return palette_.idOf(runs.palette.at(other)); });
    };
    std::vector<PieceRun> pieceRuns;
    Place place = placeOf(location);
    std::size_t at = location;
    const std::size_t end = location + runs.runs.back().end;
    for (auto run = runs.runs.begin(); at < end;) {
        const std::size_t from = at - place.pieceStart;
        const std::size_t pieceEnd = place.pieceStart + lengths_[place.piece];
        const std::size_t stop = std::min(pieceEnd, end);
        for (pieceRuns.clear(); at < stop;) {
            const auto start = static_cast<std::uint32_t>(at - place.pieceStart);
            pieceRuns.push_back({start, number(run->id)});
            at = std::min(location + run->end, stop);
            if (at == location + run->end) ++run;
        }
        changeablePiece(place.piece).replaceRuns(from, stop - place.pieceStart, pieceRuns);
        place = {place.piece + 1, pieceEnd};
    }
}

Piece& RichText::Store::changeablePiece(std::size_t index) {
    std::shared_ptr<Piece>& piece = pieces_[index];
    if (piece.use_count() > 1) piece = std::make_shared<Piece>(*piece);
    return *piece;
}

void RichText::Store::erase(Range range) {
    if (range.length == 0) return;
    const Place place = placeOf(range.location);
    const std::size_t offset = range.location - place.pieceStart;
    const std::size_t length = lengths_[place.piece];
    if (range.length < length && offset <= length - range.length) {
        changeablePiece(place.piece).erase(offset, offset + range.length);
        lengthChanged(place.piece);
        joinSmall(place.piece);
        return;
    }
    const std::size_t first = divideAt(range.location);
    const std::size_t last = divideAt(range.end());
    const auto from = static_cast<std::ptrdiff_t>(first);
    const auto to = static_cast<std::ptrdiff_t>(last);
    pieces_.erase(pieces_.begin() + from, pieces_.begin() + to);
    lengths_.erase(lengths_.begin() + from, lengths_.begin() + to);
    sumUp();
    if (first > 0) joinSmall(first - 1);
}

void RichText::Store::insert(std::size_t index, StringView text, std::uint32_t id) {
    // Text goes into the piece before the place, so that an edit at the end of
    // the text finds one.
    if (length_ > 0 && text.size() <= Piece::kCapacity) {
        const Place place = placeOf(index == 0 ? 0 : index - 1);
        if (lengths_[place.piece] + text.size() <= Piece::kCapacity) {
            changeablePiece(place.piece).insert(index - place.pieceStart, text, id);
            lengthChanged(place.piece);
            return;
        }
    }
    Store addition;
    addition.appendNumbered(text, id);
    splice(index, addition);
}

/// Puts the pieces of `addition`, numbered by this palette, before `index`.
void RichText::Store::splice(std::size_t index, const Store& addition) {
    const std::size_t at = divideAt(index);
    const auto position = static_cast<std::ptrdiff_t>(at);
    pieces_.insert(pieces_.begin() + position, addition.pieces_.begin(), addition.pieces_.end());
    lengths_.insert(lengths_.begin() + position, addition.lengths_.begin(),
                    addition.lengths_.end());
    sumUp();
    joinSmall(at + addition.pieces_.size() - 1);
    joinSmall(at);
}

/// Makes a piece start at `index` and returns its number; at the end of the
/// text the number of pieces.
std::size_t RichText::Store::divideAt(std::size_t index) {
    if (index >= length_) return pieces_.size();
    const Place place = placeOf(index);
    const std::size_t offset = index - place.pieceStart;
    if (offset == 0) return place.piece;
    auto second = std::make_shared<Piece>();
    const Piece& whole = *pieces_[place.piece];
    second->append(whole, offset, whole.length());
    Piece& first = changeablePiece(place.piece);
    first.erase(offset, first.length());
    const std::size_t at = place.piece + 1;
    const auto position = static_cast<std::ptrdiff_t>(at);
    lengths_[place.piece] = static_cast<std::uint32_t>(offset);
    lengths_.insert(lengths_.begin() + position, static_cast<std::uint32_t>(second->length()));
    pieces_.insert(pieces_.begin() + position, std::move(second));
    sumUp();
    return at;
}

/// Joins the piece with its neighbours where one of them is small.
void RichText::Store::joinSmall(std::size_t piece) {
    for (std::size_t left = piece == 0 ? 0 : piece - 1; left <= piece; ++left) {
        if (left + 1 >= pieces_.size()) return;
        const std::size_t a = lengths_[left];
        const std::size_t b = lengths_[left + 1];
        if (std::min(a, b) >= kSmall || a + b > Piece::kFill) continue;
        Piece& joined = changeablePiece(left);
        joined.append(*pieces_[left + 1], 0, b);
        lengths_[left] = static_cast<std::uint32_t>(a + b);
        pieces_.erase(pieces_.begin() + static_cast<std::ptrdiff_t>(left) + 1);
        lengths_.erase(lengths_.begin() + static_cast<std::ptrdiff_t>(left) + 1);
        sumUp();
        return;
    }
}

/// Notes the new length of one piece in all sums.
void RichText::Store::lengthChanged(std::size_t piece) {
    const auto now = static_cast<std::uint32_t>(pieces_[piece]->length());
    const std::size_t change = std::size_t{now} - lengths_[piece];  // wraps when shorter
    lengths_[piece] = now;
    groupSums_[piece / kGroup] += change;
    length_ += change;
}

void RichText::Store::sumUp() {
    groupSums_.assign((lengths_.size() + kGroup - 1) / kGroup, 0);
    for (std::size_t i = 0; i < lengths_.size(); ++i) groupSums_[i / kGroup] += lengths_[i];
    length_ = std::accumulate(groupSums_.begin(), groupSums_.end(), std::size_t{0});
}

/// Forgets attribute sets that no run has any more, once so many were added
/// that looking at all runs is cheap in comparison.
void RichText::Store::collectAttributes() {
    constexpr std::size_t kOftenEnough = 1024;
    const std::size_t added = palette_.addedSinceCollection();
    if (added < kOftenEnough || added < pieces_.size() || added * 2 < palette_.size()) return;
    std::vector<bool> used(palette_.size(), false);
    for (const auto& piece : pieces_) {
        for (const PieceRun& run : piece->runs()) used[run.id] = true;
    }
    palette_.keepOnly(used);
}

}  // namespace QZCore
