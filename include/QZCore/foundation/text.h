// Text: UTF-16 strings, their border to UTF-8, and the character sets and
// number readings that the whole library agrees on.
//
// Every index, length and limit of the library counts UTF-16 code units.
// Unpaired surrogates are ordinary units inside the library and pass through
// it unharmed; only the conversion to UTF-8, which has no form for them,
// replaces each by U+FFFD.
//
// Nothing here keeps state; every function may be called from any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "QZCore/export.h"

namespace QZCore {

/// A UTF-16 text.
using String = std::u16string;

/// A view of a UTF-16 text that somebody else owns.
using StringView = std::u16string_view;

// ---- The border to UTF-8 ----------------------------------------------------

/// `bytes` read as UTF-8. Every maximal piece that is not well-formed becomes
/// one U+FFFD; a byte-order mark is kept as U+FEFF.
[[nodiscard]] QZ_EXPORT String fromUTF8(std::string_view bytes);

/// `text` as UTF-8. Every unpaired surrogate becomes U+FFFD.
[[nodiscard]] QZ_EXPORT std::string toUTF8(StringView text);

// ---- Code points ------------------------------------------------------------

/// One code point of a text and the number of units that it takes.
struct CodePoint {
    /// The code point, or an unpaired surrogate.
    char32_t value = 0;
    /// 1 or 2.
    std::size_t length = 1;
};

/// Whether `unit` is the first half of a surrogate pair.
[[nodiscard]] constexpr bool isHighSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xD800; }

/// Whether `unit` is the second half of a surrogate pair.
[[nodiscard]] constexpr bool isLowSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

/// The code point that starts at `index`, which must be below the length. An
/// unpaired surrogate is returned as itself.
[[nodiscard]] QZ_EXPORT CodePoint codePointAt(StringView text, std::size_t index);

/// Appends `codePoint` to `text` as one or two units. A value beyond U+10FFFF
/// appends U+FFFD.
QZ_EXPORT void appendCodePoint(String& text, char32_t codePoint);

// ---- Character sets ---------------------------------------------------------

/// Space and tab class: U+0009 and the Unicode separators of category Zs.
[[nodiscard]] QZ_EXPORT bool isWhitespace(char16_t unit);

/// Line ends: U+000A to U+000D, U+0085, U+2028 and U+2029.
[[nodiscard]] QZ_EXPORT bool isNewline(char16_t unit);

/// Control characters, the tab and line ends of ASCII and U+0085 among them.
[[nodiscard]] constexpr bool isControl(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

/// The union of white space and line ends.
[[nodiscard]] QZ_EXPORT bool isWhitespaceOrNewline(char16_t unit);

/// `text` without leading and trailing spaces, tabs and line ends.
[[nodiscard]] QZ_EXPORT StringView trimmedOfWhitespaceAndNewlines(StringView text);

/// `text` without leading and trailing spaces and tabs.
[[nodiscard]] QZ_EXPORT StringView trimmedOfWhitespace(StringView text);

/// Whether `text` equals the ASCII word `word` when the letters a to z and
/// A to Z count as the same.
[[nodiscard]] QZ_EXPORT bool equalsIgnoringAsciiCase(StringView text, StringView word);

// ---- Numbers in texts -------------------------------------------------------
//
// All of them skip leading white space, read the longest number that follows
// and ignore what comes after it. Nothing depends on the host's locale.

/// The leading integer, clamped to 32 bits; 0 when there is none.
[[nodiscard]] QZ_EXPORT std::int32_t intValue(StringView text);

/// The leading integer, clamped to 64 bits; 0 when there is none.
[[nodiscard]] QZ_EXPORT std::int64_t integerValue(StringView text);

/// The leading decimal number with optional fraction and exponent; 0 when
/// there is none, an infinity when it is too large. "inf" and "nan" are not
/// numbers here.
[[nodiscard]] QZ_EXPORT double doubleValue(StringView text);

/// `doubleValue` rounded to single precision.
[[nodiscard]] QZ_EXPORT float floatValue(StringView text);

/// True when the leading integer is greater than 0 or the text is "yes" in
/// upper or lower case. Everything else is false, "true" included: that is
/// what stored settings rely on.
[[nodiscard]] QZ_EXPORT bool boolValue(StringView text);

/// What `readDouble` found: the number, and the units that it takes with the
/// white space before it.
struct ReadNumber {
    /// The number, rounded to the nearest double.
    double value = 0;
    /// The units read; 0 when there is no number.
    std::size_t length = 0;
};

/// The decimal number at the start of `text`, leading white space allowed.
/// A length of 0 means that there is none.
[[nodiscard]] QZ_EXPORT ReadNumber readDouble(StringView text);

// ---- Numbers as texts -------------------------------------------------------

/// The decimal digits of `value`.
[[nodiscard]] QZ_EXPORT String integerString(std::int64_t value);

/// The decimal digits of `value`.
[[nodiscard]] QZ_EXPORT String unsignedString(std::uint64_t value);

/// The shortest decimal text that reads back as `value`: without an exponent from
/// 10^-6 to below 10^21, with one elsewhere ("1e+21"). "nan", "inf" and "-inf"
/// for what is not finite.
[[nodiscard]] QZ_EXPORT String shortestString(double value);

/// `value` with exactly `decimals` digits after the point, rounded to nearest
/// with ties to even on the exact value, as "%.*f" prints it in the C locale.
[[nodiscard]] QZ_EXPORT String fixedString(double value, int decimals);

}  // namespace QZCore
