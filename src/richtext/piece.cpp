#include "richtext/piece.h"

#include <algorithm>

namespace QZCore {

std::size_t Piece::runAt(std::size_t offset) const {
    const auto after = std::ranges::upper_bound(runs_, offset, {}, &PieceRun::start);
    return static_cast<std::size_t>(after - runs_.begin()) - 1;
}

void Piece::append(StringView text, std::uint32_t id) {
    if (text.empty()) return;
    if (runs_.empty() || runs_.back().id != id) {
        runs_.push_back({static_cast<std::uint32_t>(text_.size()), id});
    }
    text_.append(text);
}

void Piece::append(const Piece& other, std::size_t from, std::size_t to) {
    const StringView text = other.text_;
    while (from < to) {
        const std::size_t run = other.runAt(from);
        const std::size_t end = std::min(other.runEnd(run), to);
        append(text.substr(from, end - from), other.runs_[run].id);
        from = end;
    }
}

void Piece::insert(std::size_t offset, StringView text, std::uint32_t id) {
    if (text.empty()) return;
    if (offset == text_.size()) return append(text, id);
    const auto start = static_cast<std::uint32_t>(offset);
    std::size_t run = runAt(offset);
    if (runs_[run].id == id) {
        ++run;
    } else if (run > 0 && runs_[run].start == start && runs_[run - 1].id == id) {
        // The run before grows; this one and all later ones move.
    } else if (runs_[run].start == start) {
        runs_.insert(runs_.begin() + static_cast<std::ptrdiff_t>(run), {start, id});
        ++run;
    } else {
        const PieceRun halves[] = {{start, id}, {start, runs_[run].id}};
        runs_.insert(runs_.begin() + static_cast<std::ptrdiff_t>(run) + 1, std::begin(halves),
                     std::end(halves));
        run += 2;
    }
    text_.insert(offset, text);
    shiftRuns(run, text.size());
}

void Piece::erase(std::size_t from, std::size_t to) {
    if (from >= to) return;
    const std::size_t first = divideAt(from);
    const std::size_t last = divideAt(to);
    runs_.erase(runs_.begin() + static_cast<std::ptrdiff_t>(first),
                runs_.begin() + static_cast<std::ptrdiff_t>(last));
    text_.erase(from, to - from);
    shiftRuns(first, from - to);
    mergeEqual(first == 0 ? 0 : first - 1, first + 1);
}

void Piece::replaceRuns(std::size_t from, std::size_t to, const std::vector<PieceRun>& runs) {
    const std::size_t first = divideAt(from);
    const std::size_t last = divideAt(to);
    const auto begin = runs_.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = runs_.begin() + static_cast<std::ptrdiff_t>(last);
    const auto after = runs_.erase(begin, end);
    runs_.insert(after, runs.begin(), runs.end());
    mergeEqual(first == 0 ? 0 : first - 1, first + runs.size() + 1);
}

/// Makes a run start at `offset` and returns its index; at the end of the text
/// the number of runs.
std::size_t Piece::divideAt(std::size_t offset) {
    if (offset >= text_.size()) return runs_.size();
    const std::size_t run = runAt(offset);
    if (runs_[run].start == offset) return run;
    const PieceRun second{static_cast<std::uint32_t>(offset), runs_[run].id};
    runs_.insert(runs_.begin() + static_cast<std::ptrdiff_t>(run) + 1, second);
    return run + 1;
}

/// Merges equal neighbours among the runs [first, last).
void Piece::mergeEqual(std::size_t first, std::size_t last) {
    last = std::min(last, runs_.size());
    if (last - first < 2 || first >= last) return;
    const auto begin = runs_.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = runs_.begin() + static_cast<std::ptrdiff_t>(last);
    const auto kept =
        std::unique(begin, end, [](const PieceRun& a, const PieceRun& b) { return a.id == b.id; });
    if (kept != end) runs_.erase(kept, end);
}

/// Moves the starts of all runs from `firstRun` on; a distance may wrap round
/// to mean a move towards the start.
void Piece::shiftRuns(std::size_t firstRun, std::size_t distance) {
    const auto step = static_cast<std::uint32_t>(distance);
    for (std::size_t run = firstRun; run < runs_.size(); ++run) runs_[run].start += step;
}

}  // namespace QZCore
