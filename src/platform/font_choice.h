// The rules of choice that all font catalogues share: which size stands for an
// unusable one, which characters need no glyph, and which of several faces is
// nearest to a wanted one.
#pragma once

#include <cstdint>
#include <vector>

#include "QZCore/platform/fonts.h"

namespace QZCore {

/// `size` when it is positive and finite, else `kFontDefaultSize`.
[[nodiscard]] double usableFontSize(double size);

/// Whether `character` is one at all: no surrogate and not beyond U+10FFFF.
[[nodiscard]] constexpr bool isCharacter(char32_t character) {
    return character < 0xD800 || (character > 0xDFFF && character <= 0x10FFFF);
}

/// The ASCII characters that are drawn by a glyph.
inline constexpr char32_t kFirstVisibleAscii = 0x20;
inline constexpr char32_t kLastVisibleAscii = 0x7E;

/// Whether `character` is drawn by no glyph, so that every font shows it.
[[nodiscard]] bool needsNoGlyph(char32_t character);

/// How many characters of `text` are drawn by a glyph.
[[nodiscard]] double visibleCharacters(StringView text);

/// What makes two faces alike.
struct FaceStyle {
    std::uint32_t traits = 0;
    int weight = kFontRegularWeight;
};

/// How far `style` is from `wanted`; less is nearer. A wrong trait counts more
/// than any difference in weight.
[[nodiscard]] int distanceBetween(FaceStyle style, FaceStyle wanted);

/// The nearest of `members`, which must not be empty; the first of equals.
[[nodiscard]] const FontMember& nearestMember(const std::vector<FontMember>& members,
                                              FaceStyle wanted);

/// The face `member` of `family` at `size`.
[[nodiscard]] Font fontOfMember(StringView family, const FontMember& member, double size);

}  // namespace QZCore
