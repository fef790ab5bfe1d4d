// What repeats on the calendar, so that long walks need not be taken.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

#include "dates/local_time.h"
#include "foundation/civil_date.h"

namespace QZCore {

inline constexpr std::int64_t kSecondsPerWeek = 7 * kSecondsPerDay;

/// After so many seconds years, weekdays and the rules of zones repeat.
inline constexpr std::int64_t kSecondsPerCycle = kDaysPerEra * kSecondsPerDay;

/// From here on, 1 January 2500, every zone repeats itself in cycles.
inline constexpr std::int64_t kCyclesFrom = 16'725'225'600;

/// Counts the steps of one cycle while a walk goes through it.
class CycleCounter {
public:
    /// Positions on the walk that lie `length` apart are one cycle apart.
    explicit CycleCounter(std::int64_t length) : length_(length) {}

    /// Told where a walk is and how many steps have counted, gives how many do
    /// in one cycle if it was told of the position one cycle before. It
    /// remembers one position, which a walk may pass by.
    std::optional<std::uint64_t> stepsPerCycle(std::int64_t position, std::uint64_t count) {
        if (begin_ && position == end()) {
            begin_.reset();
            return count - countAtBegin_;
        }
        if (!begin_ || position > end()) {
            begin_ = position;
            countAtBegin_ = count;
        }
        return std::nullopt;
    }

    void forget() { begin_.reset(); }

    /// The position that is waited for.
    [[nodiscard]] std::int64_t end() const { return begin_ ? *begin_ + length_ : INT64_MAX; }

private:
    std::int64_t length_;
    std::optional<std::int64_t> begin_;
    std::uint64_t countAtBegin_ = 0;
};

/// How many of `most` weeks or cycles may be taken at once if each holds
/// `perBlock` steps that count, and no more than `missing` may be taken.
[[nodiscard]] inline std::int64_t blocksWithin(std::uint64_t missing, std::uint64_t perBlock,
                                               std::int64_t most) {
    if (most <= 0) return 0;
    if (perBlock == 0) return most;
    return static_cast<std::int64_t>(
        std::min(static_cast<std::uint64_t>(most), missing / perBlock));
}

}  // namespace QZCore
