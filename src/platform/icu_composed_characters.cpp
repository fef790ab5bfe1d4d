#include <unicode/uchar.h>

#include <algorithm>

#include "platform/composed_characters.h"

namespace QZCore {
namespace {

constexpr char32_t kFirstCombiningMark = 0x300;
constexpr char32_t kZeroWidthJoiner = 0x200D;

bool has(char32_t point, UProperty property) {
    return u_hasBinaryProperty(static_cast<UChar32>(point), property) != 0;
}

std::int32_t kindOf(char32_t point, UProperty property) {
    return u_getIntPropertyValue(static_cast<UChar32>(point), property);
}

/// Whether marks after `point` belong to it.
bool isBase(char32_t point) {
    const std::int32_t kind = kindOf(point, UCHAR_GRAPHEME_CLUSTER_BREAK);
    return kind != U_GCB_CONTROL && kind != U_GCB_CR && kind != U_GCB_LF;
}

/// Combining marks, joiners, and the modifiers of emoji.
bool isMark(char32_t point) {
    return (U_GET_GC_MASK(static_cast<UChar32>(point)) & U_GC_M_MASK) != 0 ||
           has(point, UCHAR_GRAPHEME_EXTEND) || has(point, UCHAR_EMOJI_MODIFIER) ||
           point == kZeroWidthJoiner;
}

/// Whether `next` goes on with the Hangul syllable that `last` belongs to.
bool continuesSyllable(char32_t last, char32_t next) {
    const std::int32_t before = kindOf(last, UCHAR_HANGUL_SYLLABLE_TYPE);
    switch (kindOf(next, UCHAR_HANGUL_SYLLABLE_TYPE)) {
        case U_HST_NOT_APPLICABLE:
            return false;
        case U_HST_VOWEL_JAMO:
            return before == U_HST_LEADING_JAMO || before == U_HST_VOWEL_JAMO ||
                   before == U_HST_LV_SYLLABLE;
        case U_HST_TRAILING_JAMO:
            return before != U_HST_NOT_APPLICABLE && before != U_HST_LEADING_JAMO;
        default:
            return before == U_HST_LEADING_JAMO;
    }
}

/// Whether the character that began with `first` and has come to `last` goes on
/// with `next`.
bool continuesCharacter(char32_t first, char32_t last, char32_t next) {
    if (next < kFirstCombiningMark && last != kZeroWidthJoiner) return false;
    if (isMark(next)) return isBase(first);
    if (last != kZeroWidthJoiner) return continuesSyllable(last, next);
    return has(first, UCHAR_EXTENDED_PICTOGRAPHIC) && has(next, UCHAR_EXTENDED_PICTOGRAPHIC);
}

/// The end of the two regional indicators at `start`; `start` when there are
/// not two.
std::size_t flagEnd(StringView text, std::size_t start) {
    std::size_t end = start;
    for (int i = 0; i < 2; ++i) {
        if (end == text.size()) return start;
        const CodePoint half = codePointAt(text, end);
        if (!has(half.value, UCHAR_REGIONAL_INDICATOR)) return start;
        end += half.length;
    }
    return end;
}

}  // namespace

std::size_t composedCharacterEnd(StringView text, std::size_t start) {
    const CodePoint first = codePointAt(text, start);
    char32_t last = first.value;
    std::size_t end = std::max(start + first.length, flagEnd(text, start));
    while (end < text.size()) {
        const CodePoint next = codePointAt(text, end);
        if (!continuesCharacter(first.value, last, next.value)) break;
        last = next.value;
        end += next.length;
    }
    return end;
}

}  // namespace QZCore
