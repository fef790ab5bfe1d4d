// A piece of a rich text: a few thousand units with their runs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Where a run starts in its piece, and the number of its attributes.
struct PieceRun {
    std::uint32_t start = 0;
    std::uint32_t id = 0;

    friend bool operator==(const PieceRun&, const PieceRun&) = default;
};

/// Text with runs. A piece that is not empty has a run at 0, its runs start at
/// growing positions, and neighbours have different numbers.
class Piece {
public:
    /// The most units that a piece holds; a longer one is to be divided.
    static constexpr std::size_t kCapacity = 4096;
    /// How full pieces are made, so that edits find room.
    static constexpr std::size_t kFill = 3072;

    Piece() = default;
    /// Takes text and runs over.
    Piece(String text, std::vector<PieceRun> runs)
        : text_(std::move(text)), runs_(std::move(runs)) {}

    [[nodiscard]] const String& text() const { return text_; }
    [[nodiscard]] const std::vector<PieceRun>& runs() const { return runs_; }
    [[nodiscard]] std::size_t length() const { return text_.size(); }

    /// The index of the run that contains the unit at `offset`.
    [[nodiscard]] std::size_t runAt(std::size_t offset) const;
    /// The end of the run with the given index.
    [[nodiscard]] std::size_t runEnd(std::size_t run) const {
        return run + 1 < runs_.size() ? runs_[run + 1].start : text_.size();
    }
    /// The number of the attributes at `offset`.
    [[nodiscard]] std::uint32_t idAt(std::size_t offset) const { return runs_[runAt(offset)].id; }

    /// Makes room for `length` units.
    void reserve(std::size_t length) { text_.reserve(length); }
    /// Adds `text` with the attributes `id` at the end.
    void append(StringView text, std::uint32_t id);
    /// Adds the units [from, to) of `other` at the end.
    void append(const Piece& other, std::size_t from, std::size_t to);
    /// Adds `text` with the attributes `id` before `offset`.
    void insert(std::size_t offset, StringView text, std::uint32_t id);
    /// Removes the units [from, to).
    void erase(std::size_t from, std::size_t to);

    /// Replaces the number of every run within [from, to) by what `newId` gives
    /// for it; runs that reach beyond are divided.
    template <class NewId>
    void changeIds(std::size_t from, std::size_t to, NewId newId) {
        if (from >= to) return;
        const std::size_t first = divideAt(from);
        const std::size_t last = divideAt(to);
        for (std::size_t run = first; run < last; ++run) runs_[run].id = newId(runs_[run].id);
        mergeEqual(first == 0 ? 0 : first - 1, last + 1);
    }

    /// Replaces the runs within [from, to) by `runs`, which start at `from`.
    void replaceRuns(std::size_t from, std::size_t to, const std::vector<PieceRun>& runs);

private:
    std::size_t divideAt(std::size_t offset);
    void mergeEqual(std::size_t first, std::size_t last);
    void shiftRuns(std::size_t firstRun, std::size_t distance);

    String text_;
    std::vector<PieceRun> runs_;
};

}  // namespace QZCore
