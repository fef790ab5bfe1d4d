#include <algorithm>

#include "richtext/store.h"

namespace QZCore {

RichText::RunIterator::RunIterator(const Store& store, Range range)
    : store_(&store), end_(range.end()) {
    if (range.length == 0) {
        range_ = {end_, 0};
        return;
    }
    const Store::Place place = store.placeOf(range.location);
    piece_ = place.piece;
    pieceStart_ = place.pieceStart;
    run_ = store.piece(piece_).runAt(range.location - pieceStart_);
    readRun(range.location);
}

RichText::RunIterator& RichText::RunIterator::operator++() {
    const std::size_t start = range_.end();
    if (start >= end_) {
        range_ = {end_, 0};
    } else {
        readRun(start);
    }
    return *this;
}

/// Reads the run that starts at `start`, in the piece and at the run that the
/// walk stands at, and moves to the one behind it.
void RichText::RunIterator::readRun(std::size_t start) {
    const std::uint32_t id = store_->piece(piece_).runs()[run_].id;
    std::size_t end = start;
    while (piece_ < store_->numberOfPieces() && end < end_) {
        const Piece& piece = store_->piece(piece_);
        if (piece.runs()[run_].id != id) break;
        end = pieceStart_ + piece.runEnd(run_);
        if (++run_ < piece.runs().size()) break;
        pieceStart_ += piece.length();
        ++piece_;
        run_ = 0;
    }
    end = std::min(end, end_);
    range_ = {start, end - start};
    attributes_ = &store_->palette().at(id);
}

RichText::RunIterator RichText::RunSequence::begin() const { return {*store_, range_}; }

RichText::RunIterator RichText::RunSequence::end() const { return {*store_, {range_.end(), 0}}; }

RichText::RunSequence RichText::runs() const { return {store_, {0, length()}}; }

RichText::RunSequence RichText::runs(Range range) const {
    return {store_, clampedRange(range, length())};
}

std::size_t RichText::numberOfRuns() const {
    std::size_t count = 0;
    for ([[maybe_unused]] const TextRunView& run : runs()) ++count;
    return count;
}

}  // namespace QZCore
