#include "richtext/html_attributes.h"

#include "richtext/attribute_names.h"

namespace QZCore {
namespace {

constexpr int kLeastBoldWeight = 600;

/// A target that is no URL stays a text.
Value linkOf(const String& target) {
    const auto url = URL::fromString(target);
    return url ? Value(*url) : Value(target);
}

}  // namespace

const Value& HtmlAttributes::fontOf(const HtmlLook& look) {
    const bool isBold = look.weight >= kLeastBoldWeight;
    Key key{look.family == nullptr ? String() : *look.family, look.fontSize, isBold, look.isItalic};
    const auto [at, isNew] = made_.try_emplace(std::move(key));
    if (!isNew) return at->second;
    Font font = fonts_.userFont(look.fontSize);
    if (look.family != nullptr) font = fonts_.convertFontToFamily(font, *look.family);
    if (isBold) font = fonts_.convertFontToHaveTrait(font, kFontBold);
    if (look.isItalic) font = fonts_.convertFontToHaveTrait(font, kFontItalic);
    return at->second = Value::boxed(font);
}

TextAttributes HtmlAttributes::attributesOf(const HtmlLook& look) {
    const AttributeNames& names = attributeNames();
    std::vector<TextAttribute> attributes{{names.font, fontOf(look)}};
    if (look.color) attributes.push_back({names.foregroundColor, Value::boxed(*look.color)});
    if (look.background) {
        attributes.push_back({names.backgroundColor, Value::boxed(*look.background)});
    }
    if (look.isUnderlined) attributes.push_back({names.underlineStyle, 1});
    if (look.isStruckThrough) attributes.push_back({names.strikethroughStyle, 1});
    if (look.superscript != 0) {
        attributes.push_back({NSSuperscriptAttributeName, look.superscript});
    }
    if (look.baselineOffset != 0) {
        attributes.push_back({NSBaselineOffsetAttributeName, look.baselineOffset});
    }
    if (look.link != nullptr) attributes.push_back({names.link, linkOf(*look.link)});
    return TextAttributes(std::move(attributes));
}

}  // namespace QZCore
