// Hexadecimal digits and the bytes that two of them stand for.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/foundation/data.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// The value of a hexadecimal digit in upper or lower case.
[[nodiscard]] constexpr std::optional<unsigned> hexDigitValue(char16_t digit) {
    if (digit >= u'0' && digit <= u'9') return digit - u'0';
    if (digit >= u'A' && digit <= u'F') return digit - u'A' + 10U;
    if (digit >= u'a' && digit <= u'f') return digit - u'a' + 10U;
    return std::nullopt;
}

/// The byte that the first two units of `digits` stand for; nothing when they
/// are not two hexadecimal digits.
[[nodiscard]] constexpr std::optional<std::uint8_t> hexByte(StringView digits) {
    if (digits.size() < 2) return std::nullopt;
    const auto high = hexDigitValue(digits[0]);
    const auto low = hexDigitValue(digits[1]);
    if (!high || !low) return std::nullopt;
    return static_cast<std::uint8_t>(*high << 4 | *low);
}

/// Appends `byte` as two upper-case digits.
inline void appendHexByte(String& text, std::uint8_t byte) {
    constexpr StringView kDigits = u"0123456789ABCDEF";
    text.push_back(kDigits[byte >> 4]);
    text.push_back(kDigits[byte & 15U]);
}

/// `bytes` as two lower-case digits each.
[[nodiscard]] inline String lowerHex(DataView bytes) {
    constexpr StringView kDigits = u"0123456789abcdef";
    String text;
    text.reserve(2 * bytes.size());
    for (const std::uint8_t byte : bytes) {
        text.push_back(kDigits[byte >> 4]);
        text.push_back(kDigits[byte & 15U]);
    }
    return text;
}

}  // namespace QZCore
