// Attributes of rich text as CSS declarations, each ended by a semicolon.
#pragma once

#include "QZCore/color.h"
#include "QZCore/foundation/text.h"
#include "QZCore/platform/fonts.h"
#include "QZCore/richtext/paragraph_style.h"

namespace QZCore {

/// The font that names no other: its family, or one of the same kind.
enum class FontKind { Proportional, FixedWidth };

/// The colour as "#rrggbb", or with its opacity as "rgba(r,g,b,alpha)".
[[nodiscard]] String cssColor(const Color& color);

/// What distinguishes `font` from the `around` it, but for added boldness and
/// slant.
[[nodiscard]] String cssOfFont(const Font& font, const Font& around, FontKind kind);

/// The family of `font` with a generic one behind it.
[[nodiscard]] String cssOfFamily(const Font& font, FontKind kind);

/// What distinguishes `style` from the default style. Line heights start from
/// what is natural for `fontSize` points.
[[nodiscard]] String cssOfParagraph(const ParagraphStyle& style, double fontSize);

/// A length in points, within bounds that a page can show; 0 for what is not a
/// number.
[[nodiscard]] String cssLength(double points);

}  // namespace QZCore
