// Unicode properties of characters.
#pragma once

#include <cstddef>
#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// What regular expressions call a word character: letters, marks, decimal
/// digits, connector punctuation and the two joiners.
[[nodiscard]] bool isWordCharacter(char32_t codePoint);

/// Whether the character belongs to the one before it (combining marks) or
/// only steers the layout (format characters).
[[nodiscard]] bool isCombiningOrFormat(char32_t codePoint);

/// A decimal digit of any script.
[[nodiscard]] bool isDecimalDigit(char32_t codePoint);

/// The value of a decimal digit of any script; nothing for other characters.
[[nodiscard]] std::optional<unsigned> decimalDigitValue(char32_t codePoint);

/// Whether the character is a mark that can change places with its neighbours
/// when marks are put into canonical order.
[[nodiscard]] bool isReorderedMark(char32_t codePoint);

/// The code point that ends at `index`, which must be above 0. An unpaired
/// surrogate is returned as itself.
[[nodiscard]] CodePoint codePointBefore(StringView text, std::size_t index);

}  // namespace QZCore
