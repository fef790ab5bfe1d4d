// Style sheets: how each construct of the Markdown dialect looks.
//
// A style sheet is a dictionary from style names to styles; a style is a
// dictionary from the keys below to numbers, booleans and strings. Values are
// converted by their own rules (a string 14 is the number 14); what cannot be
// used is left out, as if its key were absent.
//
// Style names: "body" for the whole text, "`" inline code, "```" code blocks,
// "*" italic of both forms, "**" bold, "***" bold italic, "highlight", ">"
// block quotes, "-" list items, and one to six hash signs for headers.
#pragma once

#include "QZCore/export.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/text_attributes.h"

namespace QZCore {

/// Styles by name.
using StyleSheet = Dictionary;

/// A string: one font name, or families in order of preference, separated by
/// commas.
inline constexpr StringView kStyleFontFamily = u"font-family";
/// A number of points.
inline constexpr StringView kStyleFontSize = u"font-size";
/// A boolean: true makes the font bold, false changes nothing.
inline constexpr StringView kStyleFontBold = u"font-bold";
/// A boolean: true makes the font italic, false changes nothing.
inline constexpr StringView kStyleFontItalic = u"font-italic";
/// A colour string: the foreground.
inline constexpr StringView kStyleFontColor = u"font-color";
/// A colour string: the background.
inline constexpr StringView kStyleBackgroundColor = u"background-color";
/// A boolean: true underlines once.
inline constexpr StringView kStyleFontUnderline = u"font-underline";
/// A boolean: true strikes through once.
inline constexpr StringView kStyleFontStrikethrough = u"font-strikethrough";
/// A number: `ParagraphStyle::lineHeightMultiple`.
inline constexpr StringView kStyleLineHeightMultiple = u"line-height-multiple";
/// A number: `ParagraphStyle::lineSpacing`.
inline constexpr StringView kStyleLineSpacing = u"line-spacing";
/// A number: `ParagraphStyle::paragraphSpacingBefore`.
inline constexpr StringView kStyleParagraphSpacingBefore = u"paragraph-spacing-before";
/// A number: `ParagraphStyle::paragraphSpacing`.
inline constexpr StringView kStyleParagraphSpacingAfter = u"paragraph-spacing-after";
/// A number: `ParagraphStyle::firstLineHeadIndent`.
inline constexpr StringView kStyleFirstLineHeadIndent = u"first-line-head-indent";
/// A number: `ParagraphStyle::headIndent`.
inline constexpr StringView kStyleHeadIndent = u"head-indent";
/// A number: `ParagraphStyle::tailIndent`.
inline constexpr StringView kStyleTailIndent = u"tail-indent";

/// The attributes that two styles prescribe; either may be null. The user style
/// wins key by key, and a key absent from both leaves its attribute unset, but
/// for the paragraph style, which is always set: the default style with the
/// fields that the styles name. A font results when a family or a size is
/// found, or a trait is asked for; it is made from `baseFont`. Fonts come from
/// the catalogue that the library uses.
[[nodiscard]] QZ_EXPORT TextAttributes fontAttributesWithDefaultStyle(
    const Dictionary* defaultStyle, const Dictionary* userStyle, const Font& baseFont);

}  // namespace QZCore
