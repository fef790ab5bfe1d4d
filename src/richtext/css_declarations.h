// Declarations of CSS, read once and then applied to many elements.
#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "richtext/css_values.h"

namespace QZCore {

/// The properties that rich text can show. What CSS writes in other ways, as
/// "margin" or "font", is read as these.
enum class CssProperty : std::uint8_t {
    Display,
    FontFamily,
    FontSize,
    FontWeight,
    FontStyle,
    Color,
    BackgroundColor,
    TextDecoration,
    VerticalAlign,
    TextAlign,
    LineHeight,
    MarginTop,
    MarginBottom,
    MarginLeft,
    MarginRight,
    PaddingLeft,
    PaddingRight,
    PaddingBottom,
    TextIndent,
    Direction,
    WhiteSpace,
    ListStyle,
    MinHeight,
    MaxWidth,
    Width,
    Height,
};

/// The words that say "as the element around".
struct CssInherit {};

/// The names of a list of font families, in order, without quotes.
using CssFamilies = std::vector<String>;

/// A value: a word in lower case, a length, a colour or font families.
using CssValue = std::variant<CssInherit, String, CssLength, Color, CssFamilies>;

/// A property and what it is set to.
struct CssDeclaration {
    CssProperty property = CssProperty::Display;
    bool isImportant = false;
    CssValue value;
};

/// Declarations, each property once at each importance.
using CssDeclarations = std::vector<CssDeclaration>;

/// Reads what stands between braces, or in the attribute "style". Of several
/// declarations of one property the last one counts. What cannot be read, or
/// shown, is left out.
[[nodiscard]] CssDeclarations cssDeclarationsOf(StringView text);

/// Adds the declaration that `value` is for `property`, by its name in CSS.
void addCssDeclaration(CssDeclarations& declarations, StringView property, StringView value);

}  // namespace QZCore
