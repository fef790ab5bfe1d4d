#include <unicode/uchar.h>

#include "platform/characters.h"

namespace QZCore {

namespace {

UChar32 engineCodePoint(char32_t codePoint) { return static_cast<UChar32>(codePoint); }

constexpr bool isAsciiLetter(char32_t codePoint) {
    return (codePoint | 0x20) >= U'a' && (codePoint | 0x20) <= U'z';
}

constexpr bool isAsciiDigit(char32_t codePoint) { return codePoint >= U'0' && codePoint <= U'9'; }

}  // namespace

bool isWordCharacter(char32_t codePoint) {
    if (codePoint < 0x80) {
        return isAsciiLetter(codePoint) || isAsciiDigit(codePoint) || codePoint == U'_';
    }
    constexpr std::uint32_t kWordCategories =
        U_GC_M_MASK | U_GC_ND_MASK | U_GC_PC_MASK | U_GC_L_MASK;
    const UChar32 point = engineCodePoint(codePoint);
    return (U_GET_GC_MASK(point) & kWordCategories) != 0 || codePoint == 0x200C ||
           codePoint == 0x200D || u_hasBinaryProperty(point, UCHAR_ALPHABETIC);
}

bool isCombiningOrFormat(char32_t codePoint) {
    if (codePoint < 0x80) return false;
    const UChar32 point = engineCodePoint(codePoint);
    return u_charType(point) == U_FORMAT_CHAR || u_hasBinaryProperty(point, UCHAR_GRAPHEME_EXTEND);
}

bool isDecimalDigit(char32_t codePoint) {
    if (codePoint < 0x80) return isAsciiDigit(codePoint);
    return u_charType(engineCodePoint(codePoint)) == U_DECIMAL_DIGIT_NUMBER;
}

std::optional<unsigned> decimalDigitValue(char32_t codePoint) {
    const std::int32_t value = u_charDigitValue(engineCodePoint(codePoint));
    if (value < 0) return std::nullopt;
    return static_cast<unsigned>(value);
}

bool isReorderedMark(char32_t codePoint) {
    constexpr char32_t kFirstMark = 0x300;
    return codePoint >= kFirstMark && u_getCombiningClass(engineCodePoint(codePoint)) != 0;
}

CodePoint codePointBefore(StringView text, std::size_t index) {
    const char16_t last = text[index - 1];
    if (index > 1 && isLowSurrogate(last) && isHighSurrogate(text[index - 2])) {
        return codePointAt(text, index - 2);
    }
    return {last, 1};
}

}  // namespace QZCore
