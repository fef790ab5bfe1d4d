// Attributes of rich text as CSS declarations, each ended by a semicolon.
#pragma once

#include "QZCore/color.h"
#include "QZCore/foundation/text.h"
#include "QZCore/platform/fonts.h"
#include "QZCore/richtext/paragraph_style.h"

namespace qznote {

/// The font that names no other: its family, or one of the same kind.
enum class FontKind { Proportional, FixedWidth };

/// The colour as "#rrggbb", or with its opacity as "rgba(r,g,b,alpha)".
[[nodiscard]] QZCore::String cssColor(const QZCore::Color& color);

/// What distinguishes `font` from the `around` it, but for added boldness and
/// slant.
[[nodiscard]] QZCore::String cssOfFont(const QZCore::Font& font, const QZCore::Font& around,
                                       FontKind kind);

/// The family of `font` with a generic one behind it.
[[nodiscard]] QZCore::String cssOfFamily(const QZCore::Font& font, FontKind kind);

/// What distinguishes `style` from the default style. Line heights start from
/// what is natural for `fontSize` points.
[[nodiscard]] QZCore::String cssOfParagraph(const QZCore::ParagraphStyle& style, double fontSize);

/// A length in points, within bounds that a page can show; 0 for what is not a
/// number.
[[nodiscard]] QZCore::String cssLength(double points);

}  // namespace qznote
