// Searches for single units, the inner loop of every scanner.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Several units side by side, so that one instruction looks at all of them.
/// Comparing them gives all bits set for each unit that compares true.
using Lanes = std::uint16_t __attribute__((vector_size(16)));
inline constexpr std::size_t kLanes = sizeof(Lanes) / sizeof(char16_t);

[[nodiscard]] inline Lanes lanesAt(const char16_t* units) {
    Lanes lanes;
    std::memcpy(&lanes, units, sizeof(lanes));
    return lanes;
}

/// A number with one byte for each lane, the first lowest: not 0 where the lane
/// is not 0.
template <class Hits>
[[nodiscard]] std::uint64_t bytesOf(Hits hits) {
    using Bytes = std::int8_t __attribute__((vector_size(kLanes)));
    const auto bytes = std::bit_cast<std::uint64_t>(__builtin_convertvector(hits, Bytes));
    return std::endian::native == std::endian::little ? bytes : __builtin_bswap64(bytes);
}

/// The first position at or after `from` whose unit is `wanted`; the length of
/// the text when there is none. `wanted` is asked with single units and with
/// lanes, so it must be free of branches.
template <class Wanted>
[[nodiscard]] std::size_t findFirst(StringView text, std::size_t from, Wanted wanted) {
    const char16_t* units = text.data();
    for (; text.size() - from >= 4 * kLanes; from += 4 * kLanes) {
        const char16_t* block = units + from;
        const auto hits = wanted(lanesAt(block)) | wanted(lanesAt(block + kLanes)) |
                          wanted(lanesAt(block + 2 * kLanes)) | wanted(lanesAt(block + 3 * kLanes));
        if (bytesOf(hits) != 0) break;
    }
    for (; text.size() - from >= kLanes; from += kLanes) {
        const std::uint64_t hits = bytesOf(wanted(lanesAt(units + from)));
        if (hits != 0) return from + static_cast<std::size_t>(std::countr_zero(hits)) / 8;
    }
    while (from < text.size() && !wanted(std::uint16_t{units[from]})) ++from;
    return from;
}

/// The first `unit` at or after `from`, or the length of the text.
[[nodiscard]] inline std::size_t findUnit(StringView text, std::size_t from, std::uint16_t unit) {
    return findFirst(text, from, [unit](auto c) { return c == unit; });
}

/// The first of two units at or after `from`, or the length of the text.
[[nodiscard]] inline std::size_t findEither(StringView text, std::size_t from, std::uint16_t a,
                                            std::uint16_t b) {
    return findFirst(text, from, [=](auto c) { return (c == a) | (c == b); });
}

/// `isNewline` without branches, for a unit or lanes.
template <class Units>
[[nodiscard]] auto endsLine(Units units) {
    // Lanes are compared with numbers of their own type.
    constexpr std::uint16_t kLineFeed = u'\n';
    constexpr std::uint16_t kFromLineFeedToReturn = u'\r' - u'\n';
    constexpr std::uint16_t kNextLine = 0x85;
    constexpr std::uint16_t kAllButLast = 0xFFFE;
    constexpr std::uint16_t kLineOrParagraphSeparator = 0x2028;
    return (static_cast<Units>(units - kLineFeed) <= kFromLineFeedToReturn) | (units == kNextLine) |
           ((units & kAllButLast) == kLineOrParagraphSeparator);
}

/// The first line end at or after `from`, or the length of the text.
[[nodiscard]] inline std::size_t findLineEnd(StringView text, std::size_t from) {
    return findFirst(text, from, [](auto c) { return endsLine(c); });
}

/// The first `unit` or line end at or after `from`, or the length of the text.
[[nodiscard]] inline std::size_t findUnitOrLineEnd(StringView text, std::size_t from,
                                                   std::uint16_t unit) {
    return findFirst(text, from, [unit](auto c) { return (c == unit) | endsLine(c); });
}

/// The first position at or after `from` that holds another unit than `unit`.
[[nodiscard]] inline std::size_t skipUnit(StringView text, std::size_t from, char16_t unit) {
    while (from < text.size() && text[from] == unit) ++from;
    return from;
}

/// Whether a line starts at `index`.
[[nodiscard]] inline bool isLineStart(StringView text, std::size_t index) {
    return index == 0 || endsLine(text[index - 1]);
}

}  // namespace QZCore
