#include <cmath>

#include "QZCore/foundation/preferences.h"
#include "QZCore/richtext/font_manager.h"
#include "richtext/font_families.h"

namespace QZCore {
namespace {

float sizeFromStyle(const FontAttributes& style) {
    const Value* size = style.find(kQZFontAttributesSize);
    return size == nullptr ? static_cast<float>(kFontDefaultSize) : size->floatValue();
}

std::int32_t decorationFromStyle(const FontAttributes& style, StringView key) {
    return style.objectForKey(key).intValue();
}

}  // namespace

TextAttributes FontManager::fontAttributesFromStyle(const FontAttributes& style) const {
    std::vector<TextAttribute> attributes;
    const auto add = [&attributes](StringView name, Value value) {
        attributes.push_back({name, std::move(value)});
    };
    add(NSFontAttributeName, Value::boxed(fontFromStyle(style)));
    add(NSForegroundColorAttributeName, Value::boxed(colorFontAttributeFromStyle(style)));
    const auto background =
        Color::colorForString(style.objectForKey(kQZFontAttributesBackgroundColor));
    if (background && *background != Color::clearColor()) {
        add(NSBackgroundColorAttributeName, Value::boxed(*background));
    }
    add(NSUnderlineStyleAttributeName, decorationFromStyle(style, kQZFontAttributesUnderline));
    add(NSStrikethroughStyleAttributeName,
        decorationFromStyle(style, kQZFontAttributesStrikethrough));
    add(NSParagraphStyleAttributeName, Value::boxed(paragraphFontAttributeFromStyle(style)));
    return TextAttributes(std::move(attributes));
}

std::optional<TextAttributes> FontManager::fontAttributesFromStyle(
    const std::optional<FontAttributes>& style) const {
    if (!style) return std::nullopt;
    return fontAttributesFromStyle(*style);
}

Font FontManager::fontFromStyle(const FontAttributes& style) const {
    const float size = sizeFromStyle(style);
    std::optional<Font> face;
    if (const Value* name = style.find(kQZFontAttributesFaceName)) {
        face = fontNamed(name->stringValue(), size);
    }
    const Font font = face ? *face : fontWithStyledTraits(userFont(size), style);
    const double minimum = Preferences::shared().doubleForKey(u"Style Font Size Min");
    return minimum > 0 && font.pointSize < minimum ? convertFontToSize(font, minimum) : font;
}

/// `font` in the family and with the traits of the style. Without a family the
/// traits do not count.
Font FontManager::fontWithStyledTraits(Font font, const FontAttributes& style) const {
    const Value* families = style.find(kQZFontAttributesFamilyName);
    if (families == nullptr) return font;
    if (const auto family = firstInstalledFamily(*this, families->stringValue())) {
        font = convertFontToFamily(font, *family);
    }
    if (const Value* bold = style.find(kQZFontAttributesBold)) {
        font = convertFontToHaveTrait(font, bold->boolValue() ? kFontBold : kFontUnbold);
    }
    if (const Value* italic = style.find(kQZFontAttributesItalic)) {
        font = convertFontToHaveTrait(font, italic->boolValue() ? kFontItalic : kFontUnitalic);
    }
    return font;
}

Color FontManager::colorFontAttributeFromStyle(const FontAttributes& style) const {
    return Color::colorForString(style.objectForKey(kQZFontAttributesColor))
        .value_or(Color::blackColor());
}

ParagraphStyle FontManager::paragraphFontAttributeFromStyle(const FontAttributes& style) const {
    ParagraphStyle paragraph;
    if (const Value* alignment = style.find(kQZFontAttributesHorizontalAlignment)) {
        paragraph.alignment = textAlignmentForCode(alignment->integerValue());
    }
    const float lineHeight = style.objectForKey(kQZFontAttributesLineHeight).floatValue();
    if (std::isfinite(lineHeight)) {
        paragraph.minimumLineHeight = lineHeight;
        paragraph.maximumLineHeight = lineHeight;
    }
    return paragraph;
}

FontAttributes FontManager::styleForAttributes(const TextAttributes& attributes) const {
    FontAttributes style;
    if (const Font* font = attributes.font()) {
        style.setObject(font->faceName, kQZFontAttributesFaceName);
        style.setObject(font->familyName, kQZFontAttributesFamilyName);
        style.setObject(static_cast<float>(font->pointSize), kQZFontAttributesSize);
        style.setObject((font->traits & kFontBold) != 0, kQZFontAttributesBold);
        style.setObject((font->traits & kFontItalic) != 0, kQZFontAttributesItalic);
    }
    if (const Color* color = attributes.foregroundColor()) {
        style.setObject(color->stringForColor(), kQZFontAttributesColor);
    }
    const Color* background = attributes.backgroundColor();
    if (background != nullptr && *background != Color::clearColor()) {
        style.setObject(background->stringForColor(), kQZFontAttributesBackgroundColor);
    }
    style.setObject(attributes.objectForKey(NSUnderlineStyleAttributeName),
                    kQZFontAttributesUnderline);
    style.setObject(attributes.objectForKey(NSStrikethroughStyleAttributeName),
                    kQZFontAttributesStrikethrough);
    if (const ParagraphStyle* paragraph = attributes.paragraphStyle()) {
        style.setObject(static_cast<unsigned>(paragraph->alignment),
                        kQZFontAttributesHorizontalAlignment);
        const double height = paragraph->minimumLineHeight;
        if (height == paragraph->maximumLineHeight && height != 0) {
            style.setObject(static_cast<float>(height), kQZFontAttributesLineHeight);
        }
    }
    return style;
}

}  // namespace QZCore
