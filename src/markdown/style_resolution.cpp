#include <cmath>
#include <optional>

#include "QZCore/markdown/style_sheet.h"
#include "richtext/attribute_names.h"
#include "richtext/font_families.h"

namespace QZCore {
namespace {

/// Two styles seen as one: the user's value of a key, else the default's.
class Styles {
public:
    Styles(const Dictionary* defaultStyle, const Dictionary* userStyle)
        : default_(defaultStyle), user_(userStyle) {}

    [[nodiscard]] const Value& valueFor(StringView key) const {
        static const Value& none = *new Value;
        const Value* value = user_ == nullptr ? nullptr : user_->find(key);
        if (value == nullptr && default_ != nullptr) value = default_->find(key);
        return value == nullptr ? none : *value;
    }

    [[nodiscard]] bool isOn(StringView key) const { return valueFor(key).boolValue(); }

    [[nodiscard]] std::optional<double> number(StringView key) const {
        const Value& value = valueFor(key);
        const double number = value.doubleValue();
        if (value.isAbsent() || !std::isfinite(number)) return std::nullopt;
        return number;
    }

private:
    const Dictionary* default_;
    const Dictionary* user_;
};

/// The font of a family value: a font of that very name, or `baseFont` in the
/// first of its families that is installed.
std::optional<Font> fontOfFamily(const FontManager& fonts, StringView family, double size,
                                 const Font& baseFont) {
    if (auto named = fonts.fontNamed(family, size)) return named;
    const auto installed = firstInstalledFamily(fonts, family);
    if (!installed) return std::nullopt;
    return fonts.convertFontToFamily(fonts.convertFontToSize(baseFont, size), *installed);
}

std::optional<Font> resolvedFont(const Styles& styles, const Font& baseFont) {
    const FontManager fonts = FontManager::shared();
    const double size = styles.number(kStyleFontSize).value_or(0);
    std::optional<Font> font;
    if (const Value& family = styles.valueFor(kStyleFontFamily); !family.isAbsent()) {
        const double familySize = size > 0 ? size : baseFont.pointSize;
        font = fontOfFamily(fonts, family.stringValue(), familySize, baseFont);
    }
    if (!font && size > 0) font = fonts.convertFontToSize(baseFont, size);
    for (const auto& [key, trait] :
         {std::pair{kStyleFontBold, kFontBold}, std::pair{kStyleFontItalic, kFontItalic}}) {
        if (styles.isOn(key)) font = fonts.convertFontToHaveTrait(font.value_or(baseFont), trait);
    }
    return font;
}

/// One object for all styles that leave the paragraph as it is, so that it is
/// soon compared.
Value valueOf(const ParagraphStyle& style) {
    static const Value& unchanged = *new Value(Value::boxed(ParagraphStyle{}));
    return style == ParagraphStyle{} ? unchanged : Value::boxed(style);
}

ParagraphStyle resolvedParagraphStyle(const Styles& styles) {
    constexpr std::pair<StringView, double ParagraphStyle::*> kFields[] = {
        {kStyleLineHeightMultiple, &ParagraphStyle::lineHeightMultiple},
        {kStyleLineSpacing, &ParagraphStyle::lineSpacing},
        {kStyleParagraphSpacingBefore, &ParagraphStyle::paragraphSpacingBefore},
        {kStyleParagraphSpacingAfter, &ParagraphStyle::paragraphSpacing},
        {kStyleFirstLineHeadIndent, &ParagraphStyle::firstLineHeadIndent},
        {kStyleHeadIndent, &ParagraphStyle::headIndent},
        {kStyleTailIndent, &ParagraphStyle::tailIndent},
    };
    ParagraphStyle paragraph;
    for (const auto& [key, field] : kFields) {
        if (const auto value = styles.number(key)) paragraph.*field = *value;
    }
    return paragraph;
}

}  // namespace

TextAttributes fontAttributesWithDefaultStyle(const Dictionary* defaultStyle,
                                              const Dictionary* userStyle, const Font& baseFont) {
    const Styles styles(defaultStyle, userStyle);
    const AttributeNames& names = attributeNames();
    std::vector<TextAttribute> attributes;
    attributes.reserve(6);
    const auto add = [&attributes](AttributeName name, Value value) {
        attributes.push_back({name, std::move(value)});
    };
    if (const auto font = resolvedFont(styles, baseFont)) {
        add(names.font, Value::boxed(*font));
    }
    if (const auto color = Color::colorForString(styles.valueFor(kStyleFontColor))) {
        add(names.foregroundColor, Value::boxed(*color));
    }
    if (const auto color = Color::colorForString(styles.valueFor(kStyleBackgroundColor))) {
        add(names.backgroundColor, Value::boxed(*color));
    }
    if (styles.isOn(kStyleFontUnderline)) add(names.underlineStyle, 1);
    if (styles.isOn(kStyleFontStrikethrough)) add(names.strikethroughStyle, 1);
    add(names.paragraphStyle, valueOf(resolvedParagraphStyle(styles)));
    return TextAttributes(std::move(attributes));
}

}  // namespace QZCore
