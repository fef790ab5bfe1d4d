#include "richtext/css_writing.h"

#include <algorithm>

#include "QZCore/color/color_bytes.h"

namespace QZCore {
namespace {

/// The declaration, or nothing when the length is 0.
String lengthUnlessZero(StringView property, double points) {
    return points == 0 ? String() : String(property) + u":" + cssLength(points) + u";";
}

String quotedFamily(StringView family) {
    String quoted = u"'";
    for (const char16_t unit : family) {
        if (isControl(unit)) continue;
        if (unit == u'\'' || unit == u'\\') quoted += u'\\';
        quoted += unit;
    }
    return quoted + u"'";
}

StringView cssAlignment(TextAlignment alignment) {
    switch (alignment) {
        case TextAlignment::Left:
            return u"text-align:left;";
        case TextAlignment::Right:
            return u"text-align:right;";
        case TextAlignment::Center:
            return u"text-align:center;";
        case TextAlignment::Justified:
            return u"text-align:justify;";
        case TextAlignment::Natural:
            break;
    }
    return {};
}

StringView cssDirection(WritingDirection direction) {
    switch (direction) {
        case WritingDirection::LeftToRight:
            return u"unicode-bidi:normal;direction:ltr;";
        case WritingDirection::RightToLeft:
            return u"unicode-bidi:normal;direction:rtl;";
        case WritingDirection::Natural:
            break;
    }
    return {};
}

String cssOfLineHeight(const ParagraphStyle& style, double fontSize) {
    constexpr double kNaturalLineHeight = 1.2;
    const bool multiplied = style.lineHeightMultiple > 0 && style.lineHeightMultiple != 1;
    double height = fontSize * kNaturalLineHeight * (multiplied ? style.lineHeightMultiple : 1);
    if (style.maximumLineHeight > 0) height = std::min(height, style.maximumLineHeight);
    height = std::max(height, style.minimumLineHeight) + style.lineSpacing;
    const bool natural = !multiplied && style.maximumLineHeight <= 0 &&
                         style.minimumLineHeight <= 0 && style.lineSpacing == 0;
    return natural ? String() : u"line-height:" + cssLength(height) + u";";
}

}  // namespace

String cssLength(double points) {
    constexpr double kMost = 10000;
    return shortestString(points == points ? std::clamp(points, -kMost, kMost) : 0) + u"pt";
}

String cssColor(const Color& color) {
    const auto [red, green, blue] = colorBytes(color);
    const auto decimal = [](int value) { return integerString(value); };
    if (color.alphaComponent() >= 1) {
        constexpr StringView kDigits = u"0123456789abcdef";
        String hex = u"#";
        for (const int byte : {red, green, blue}) {
            hex += kDigits[static_cast<std::size_t>(byte) >> 4];
            hex += kDigits[static_cast<std::size_t>(byte) & 15];
        }
        return hex;
    }
    const double alpha = color.alphaComponent() > 0 ? color.alphaComponent() : 0;
    return u"rgba(" + decimal(red) + u"," + decimal(green) + u"," + decimal(blue) + u"," +
           shortestString(alpha) + u")";
}

String cssOfFamily(const Font& font, FontKind kind) {
    const StringView generic = kind == FontKind::FixedWidth ? u",monospace;" : u",sans-serif;";
    return u"font-family:" + quotedFamily(font.familyName) + String(generic);
}

String cssOfFont(const Font& font, const Font& around, FontKind kind) {
    const std::uint32_t lost = around.traits & ~font.traits;
    String css;
    if (font.familyName != around.familyName) css += cssOfFamily(font, kind);
    if (font.pointSize != around.pointSize) css += u"font-size:" + cssLength(font.pointSize) + u";";
    if ((lost & kFontBold) != 0) css += u"font-weight:normal;";
    if ((lost & kFontItalic) != 0) css += u"font-style:normal;";
    return css;
}

String cssOfParagraph(const ParagraphStyle& style, double fontSize) {
    String css(cssAlignment(style.alignment));
    css += cssDirection(style.baseWritingDirection);
    css += cssOfLineHeight(style, fontSize);
    css += lengthUnlessZero(u"margin-top", style.paragraphSpacingBefore);
    css += lengthUnlessZero(u"margin-bottom", style.paragraphSpacing);
    css += lengthUnlessZero(u"padding-inline-start", style.headIndent);
    css += lengthUnlessZero(u"text-indent", style.firstLineHeadIndent - style.headIndent);
    if (style.tailIndent < 0) css += lengthUnlessZero(u"padding-inline-end", -style.tailIndent);
    if (style.tailIndent > 0) css += lengthUnlessZero(u"max-width", style.tailIndent);
    return css;
}

}  // namespace QZCore
