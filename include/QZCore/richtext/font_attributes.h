// FontAttributes: the form in which text styles are stored in settings, style
// sheets and documents.
//
// A flat dictionary of plain keys to numbers, booleans and colour strings.
// `FontManager` turns it into `TextAttributes` and back. The key strings and
// the numbers are part of stored documents.
#pragma once

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A stored text style.
using FontAttributes = Dictionary;

/// A string: font families in order of preference, separated by commas. Absent
/// means the user's default font.
inline constexpr StringView kQZFontAttributesFamilyName = u"familyName";
/// A string: the unique name of a font face; it wins over the family.
inline constexpr StringView kQZFontAttributesFaceName = u"faceName";
/// A number of points; 12 when absent.
inline constexpr StringView kQZFontAttributesSize = u"fontSize";
/// A colour string; black when absent.
inline constexpr StringView kQZFontAttributesColor = u"textColor";
/// A colour string; no background when absent.
inline constexpr StringView kQZFontAttributesBackgroundColor = u"textBackgroundColor";
/// A boolean; the font's own weight when absent.
inline constexpr StringView kQZFontAttributesBold = u"bold";
/// A boolean; the font's own slant when absent.
inline constexpr StringView kQZFontAttributesItalic = u"italic";
/// An integer: the underline style; 0 when absent.
inline constexpr StringView kQZFontAttributesUnderline = u"underline";
/// An integer: the strikethrough style; 0 when absent.
inline constexpr StringView kQZFontAttributesStrikethrough = u"strikethrough";
/// A number of `TextAlignment`; natural when absent.
inline constexpr StringView kQZFontAttributesHorizontalAlignment = u"horizontalAlignment";
/// A number of points: the fixed height of a line; 0, or absent, for none.
inline constexpr StringView kQZFontAttributesLineHeight = u"lineHeight";
/// Joins several style values into one string, for applications that do.
inline constexpr StringView kQZFontAttributesSeparator = u"~";

}  // namespace QZCore
