#include "platform/font_choice.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>

namespace QZCore {
namespace {

constexpr char32_t kAttachmentCharacter = 0xFFFC;
constexpr int kHeaviest = 15;
constexpr int kWrongTrait = kHeaviest + 1;

}  // namespace

double usableFontSize(double size) {
    return std::isfinite(size) && size > 0 ? size : kFontDefaultSize;
}

bool needsNoGlyph(char32_t character) {
    if (character >= kFirstVisibleAscii && character <= kLastVisibleAscii) return false;
    const auto point = static_cast<UChar32>(character);
    constexpr std::uint32_t kNoGlyph = U_GC_CC_MASK | U_GC_CF_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
    return (U_GET_GC_MASK(point) & kNoGlyph) != 0 || character == kAttachmentCharacter ||
           u_hasBinaryProperty(point, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0;
}

double visibleCharacters(StringView text) {
    double count = 0;
    for (std::size_t i = 0; i < text.size();) {
        const CodePoint point = codePointAt(text, i);
        if (!needsNoGlyph(point.value)) ++count;
        i += point.length;
    }
    return count;
}

int distanceBetween(FaceStyle style, FaceStyle wanted) {
    const std::uint32_t wrong = (style.traits ^ wanted.traits) & (kFontItalic | kFontBold);
    return std::popcount(wrong) * kWrongTrait +
           std::abs(style.weight - std::clamp(wanted.weight, 0, kHeaviest));
}

const FontMember& nearestMember(const std::vector<FontMember>& members, FaceStyle wanted) {
    return *std::ranges::min_element(members, {}, [&](const FontMember& member) {
        return distanceBetween({member.traits, member.weight}, wanted);
    });
}

Font fontOfMember(StringView family, const FontMember& member, double size) {
    return {.familyName = String(family),
            .faceName = member.uniqueName,
            .pointSize = usableFontSize(size),
            .traits = member.traits,
            .weight = member.weight};
}

}  // namespace QZCore
