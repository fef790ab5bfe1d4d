// Searches for single units, the inner loop of every scanner.
#pragma once

#include <cstddef>
#include <cstdint>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Skips blocks of `kBlock` units of which none is `wanted`.
template <std::size_t kBlock, class Wanted>
[[nodiscard]] std::size_t skipBlocks(StringView text, std::size_t from, Wanted wanted) {
    const char16_t* units = text.data();
    while (text.size() - from >= kBlock) {
        std::uint16_t found = 0;
        for (std::size_t i = 0; i < kBlock; ++i) {
            found = static_cast<std::uint16_t>(found | (wanted(units[from + i]) ? 1 : 0));
        }
        if (found != 0) break;
        from += kBlock;
    }
    return from;
}

/// The first position at or after `from` whose unit is `wanted`; the length of
/// the text when there is none. `wanted` should be free of branches: it is
/// asked for blocks of units at once.
template <class Wanted>
[[nodiscard]] std::size_t findFirst(StringView text, std::size_t from, Wanted wanted) {
    from = skipBlocks<32>(text, from, wanted);
    from = skipBlocks<8>(text, from, wanted);
    while (from < text.size() && !wanted(text[from])) ++from;
    return from;
}

/// The first `unit` at or after `from`, or the length of the text.
[[nodiscard]] inline std::size_t findUnit(StringView text, std::size_t from, char16_t unit) {
    return findFirst(text, from, [unit](char16_t c) { return c == unit; });
}

/// The first of two units at or after `from`, or the length of the text.
[[nodiscard]] inline std::size_t findEither(StringView text, std::size_t from, char16_t a,
                                            char16_t b) {
    return findFirst(text, from, [=](char16_t c) { return (c == a) | (c == b); });
}

/// `isNewline` without branches.
[[nodiscard]] constexpr bool endsLine(char16_t unit) {
    return (static_cast<char16_t>(unit - u'\n') <= u'\r' - u'\n') | (unit == 0x85) |
           ((unit & 0xFFFE) == 0x2028);
}

/// The first line end at or after `from`, or the length of the text.
[[nodiscard]] inline std::size_t findLineEnd(StringView text, std::size_t from) {
    return findFirst(text, from, endsLine);
}

/// The first `unit` or line end at or after `from`, or the length of the text.
[[nodiscard]] inline std::size_t findUnitOrLineEnd(StringView text, std::size_t from,
                                                   char16_t unit) {
    return findFirst(text, from, [unit](char16_t c) { return (c == unit) | endsLine(c); });
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
