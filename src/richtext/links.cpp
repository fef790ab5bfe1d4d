#include "QZCore/richtext/rich_text.h"
#include "richtext/attribute_names.h"
#include "richtext/cleaned_runs.h"
#include "richtext/store.h"

namespace QZCore {
namespace {

/// A clear link colour stands for none.
bool isNoColor(const std::optional<Color>& color) {
    return !color || *color == Color::clearColor();
}

}  // namespace

RichText RichText::hyperlinkFromString(StringView string, const Value& withURL,
                                       const std::optional<Color>& withColor, bool underline) {
    const AttributeNames& names = attributeNames();
    std::vector<TextAttribute> attributes{{names.link, withURL},
                                          {names.underlineStyle, underline ? 1 : 0}};
    if (!isNoColor(withColor)) {
        attributes.push_back({names.foregroundColor, Value::boxed(*withColor)});
    }
    return RichText(string, TextAttributes(std::move(attributes)));
}

void RichText::appendLinkedString(StringView string, const Value& withURL,
                                  const std::optional<Color>& withColor, bool underline) {
    appendAttributedString(hyperlinkFromString(string, withURL, withColor, underline));
}

void RichText::addFormattingForLinksWithColor(const std::optional<Color>& color, bool underline) {
    const AttributeNames& names = attributeNames();
    if (!containsLinks()) return;
    const bool hasColor = !isNoColor(color);
    const AttributeName changed = hasColor ? names.foregroundColor : NSUnderlineColorAttributeName;
    const Value value = hasColor ? Value::boxed(*color) : Value();
    changeAttributes({0, length()}, [&](const TextAttributes& before) {
        if (before.link() == nullptr) return before;
        return before.withAttribute(changed, value)
            .withAttribute(names.underlineStyle, underline ? 1 : 0);
    });
}

RichText RichText::stringByAddingFormattingForLinksWithColor(const std::optional<Color>& color,
                                                             bool underline) const {
    RichText copy = *this;
    copy.addFormattingForLinksWithColor(color, underline);
    return copy;
}

void RichText::removeFormattingForLinksIncludingColor([[maybe_unused]] bool color,
                                                      [[maybe_unused]] bool underline,
                                                      [[maybe_unused]] bool linkAttribute) {
    FlatRuns text = FlatTextAccess::flattenedRuns(*this, {0, kFlatTextLimit - 1});
    if (removeLinkFormatting(text)) FlatTextAccess::replaceRuns(*this, 0, text);
}

void RichText::removeAppleColorEmoji() {
    FlatRuns text = FlatTextAccess::flattenedRuns(*this, {0, kFlatTextLimit - 1});
    if (removeColorEmojiFonts(text)) FlatTextAccess::replaceRuns(*this, 0, text);
}

void RichText::replaceTextForegroundColor(const Color& color,
                                          const std::optional<Color>& withColor) {
    if (withColor && withColor->isEqualByString(color)) return;
    const Value replacement = withColor ? Value::boxed(*withColor) : Value();
    changeAttributes({0, length()}, [&](const TextAttributes& before) {
        const Color* own = before.foregroundColor();
        if (own == nullptr || !own->isEqualByString(color)) return before;
        return before.withAttribute(attributeNames().foregroundColor, replacement);
    });
}

}  // namespace QZCore
