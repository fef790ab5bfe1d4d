// Ranges of positions in a text or an array.
#pragma once

#include <cstddef>
#include <cstdint>

namespace QZCore {

/// The position that means "nowhere": the largest signed 64-bit value.
inline constexpr std::size_t kNotFound = static_cast<std::size_t>(INT64_MAX);

/// `length` positions from `location` on.
struct Range {
    /// The first position.
    std::size_t location = 0;
    /// The number of positions.
    std::size_t length = 0;

    /// The first position after the range. A range whose end would not fit
    /// ends at the largest position.
    [[nodiscard]] constexpr std::size_t end() const {
        return length > SIZE_MAX - location ? SIZE_MAX : location + length;
    }

    /// Whether `position` lies in the range.
    [[nodiscard]] constexpr bool contains(std::size_t position) const {
        return position >= location && position - location < length;
    }

    /// Exact comparison of both fields.
    friend constexpr bool operator==(const Range&, const Range&) = default;
};

/// The range that means "nowhere": at `kNotFound`, of length 0.
inline constexpr Range kNotFoundRange{kNotFound, 0};

/// The part of `range` that lies within `length` positions from 0; an empty
/// range at `length` when nothing does.
[[nodiscard]] constexpr Range clampedRange(Range range, std::size_t length) {
    if (range.location >= length) return {length, 0};
    const std::size_t room = length - range.location;
    return {range.location, range.length < room ? range.length : room};
}

/// The positions that both ranges hold; an empty range at the larger start
/// when there are none.
[[nodiscard]] constexpr Range intersectionRange(Range a, Range b) {
    const std::size_t start = a.location > b.location ? a.location : b.location;
    const std::size_t end = a.end() < b.end() ? a.end() : b.end();
    return {start, end > start ? end - start : 0};
}

}  // namespace QZCore
