#include "richtext/html_hints.h"

#include <algorithm>

namespace QZCore {
namespace {

struct HintRow {
    StringView attribute;
    StringView elements;  // that it counts for, between blanks; all when empty
    StringView property;
};

constexpr HintRow kHints[] = {
    {u"align", u" p div h1 h2 h3 h4 h5 h6 td th tr table caption ", u"text-align"},
    {u"bgcolor", u"", u"background-color"},
    {u"color", u" font basefont ", u"color"},
    {u"dir", u"", u"direction"},
    {u"face", u" font basefont ", u"font-family"},
    {u"height", u" img ", u"height"},
    {u"type", u" ul ol li ", u"list-style-type"},
    {u"width", u" img ", u"width"},
};

bool isDigits(StringView text) {
    return !text.empty() && text.find_first_not_of(u"0123456789.") == text.npos;
}

/// The size of "font": 1 to 7, or steps from 3.
StringView fontSizeFor(StringView value) {
    constexpr StringView kSizes[] = {u"x-small", u"small",    u"medium",   u"large",
                                     u"x-large", u"xx-large", u"xxx-large"};
    constexpr std::int32_t kUsual = 3;
    const bool isStep = value.starts_with(u'+') || value.starts_with(u'-');
    const std::int32_t number = std::clamp(intValue(value), -10, 10) + (isStep ? kUsual : 0);
    return kSizes[std::clamp(number, 1, 7) - 1];
}

}  // namespace

CssDeclarations htmlHintsOf(const HtmlToken& tag) {
    CssDeclarations hints;
    const String element = u" " + tag.text + u" ";
    for (const HtmlAttribute& attribute : tag.attributes) {
        const auto* row = std::ranges::find(kHints, attribute.name, &HintRow::attribute);
        if (row == std::end(kHints)) continue;
        if (!row->elements.empty() && row->elements.find(element) == StringView::npos) continue;
        // Numbers of attributes are pixels.
        const bool isPixels = isDigits(attribute.value) && row->property != u"background-color";
        addCssDeclaration(hints, row->property,
                          isPixels ? attribute.value + u"px" : attribute.value);
    }
    if (tag.text == u"font") {
        if (const String* size = tag.find(u"size")) {
            addCssDeclaration(hints, u"font-size", fontSizeFor(*size));
        }
    }
    if (tag.find(u"hidden") != nullptr) addCssDeclaration(hints, u"display", u"none");
    return hints;
}

}  // namespace QZCore
