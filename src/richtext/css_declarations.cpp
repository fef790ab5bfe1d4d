#include "richtext/css_declarations.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace QZCore {
namespace {

/// How the value of a property is read.
enum class Reading : std::uint8_t {
    Word,
    Length,
    WordOrLength,
    Color,
    Families,
    Words,       // any of them
    Background,  // the part that is a colour
    Font,
    Sides,     // of one to four lengths
    SideEnds,  // of one or two
};

struct PropertyRow {
    StringView name;
    Reading reading;
    CssProperty property;
};

constexpr PropertyRow kProperties[] = {
    {u"background", Reading::Background, CssProperty::BackgroundColor},
    {u"background-color", Reading::Color, CssProperty::BackgroundColor},
    {u"color", Reading::Color, CssProperty::Color},
    {u"direction", Reading::Word, CssProperty::Direction},
    {u"display", Reading::Word, CssProperty::Display},
    {u"font", Reading::Font, CssProperty::FontSize},
    {u"font-family", Reading::Families, CssProperty::FontFamily},
    {u"font-size", Reading::WordOrLength, CssProperty::FontSize},
    {u"font-style", Reading::Word, CssProperty::FontStyle},
    {u"font-weight", Reading::WordOrLength, CssProperty::FontWeight},
    {u"height", Reading::Length, CssProperty::Height},
    {u"line-height", Reading::WordOrLength, CssProperty::LineHeight},
    {u"list-style", Reading::Words, CssProperty::ListStyle},
    {u"list-style-type", Reading::Word, CssProperty::ListStyle},
    {u"margin", Reading::Sides, CssProperty::MarginTop},
    {u"margin-bottom", Reading::Length, CssProperty::MarginBottom},
    {u"margin-inline", Reading::SideEnds, CssProperty::MarginLeft},
    {u"margin-inline-end", Reading::Length, CssProperty::MarginRight},
    {u"margin-inline-start", Reading::Length, CssProperty::MarginLeft},
    {u"margin-left", Reading::Length, CssProperty::MarginLeft},
    {u"margin-right", Reading::Length, CssProperty::MarginRight},
    {u"margin-top", Reading::Length, CssProperty::MarginTop},
    {u"max-width", Reading::Length, CssProperty::MaxWidth},
    {u"min-height", Reading::Length, CssProperty::MinHeight},
    {u"padding", Reading::Sides, CssProperty::PaddingBottom},
    {u"padding-bottom", Reading::Length, CssProperty::PaddingBottom},
    {u"padding-inline", Reading::SideEnds, CssProperty::PaddingLeft},
    {u"padding-inline-end", Reading::Length, CssProperty::PaddingRight},
    {u"padding-inline-start", Reading::Length, CssProperty::PaddingLeft},
    {u"padding-left", Reading::Length, CssProperty::PaddingLeft},
    {u"padding-right", Reading::Length, CssProperty::PaddingRight},
    {u"text-align", Reading::Word, CssProperty::TextAlign},
    {u"text-decoration", Reading::Words, CssProperty::TextDecoration},
    {u"text-decoration-line", Reading::Words, CssProperty::TextDecoration},
    {u"text-indent", Reading::Length, CssProperty::TextIndent},
    {u"vertical-align", Reading::WordOrLength, CssProperty::VerticalAlign},
    {u"white-space", Reading::Word, CssProperty::WhiteSpace},
    {u"width", Reading::Length, CssProperty::Width},
};
static_assert(std::ranges::is_sorted(kProperties, {}, &PropertyRow::name),
              "properties are searched by halves");

StringView trimmed(StringView text) { return trimmedOfWhitespaceAndNewlines(text); }

/// What stands before "!important", and whether that is there.
std::pair<StringView, bool> withoutImportance(StringView value) {
    const std::size_t mark = findInCss(value, 0, u"!");
    const bool isImportant = mark < value.size() &&
                             equalsIgnoringAsciiCase(trimmed(value.substr(mark + 1)), u"important");
    return {trimmed(value.substr(0, mark)), isImportant};
}

String unquoted(StringView name) {
    const bool isQuoted = name.size() > 1 && (name.front() == u'"' || name.front() == u'\'') &&
                          name.back() == name.front();
    if (isQuoted) name = name.substr(1, name.size() - 2);
    String plain;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] == u'\\' && i + 1 < name.size()) ++i;
        plain += name[i];
    }
    return plain;
}

CssFamilies familiesOf(StringView list) {
    CssFamilies families;
    for (std::size_t at = 0; at < list.size();) {
        const std::size_t end = findInCss(list, at, u",");
        const StringView name = trimmed(list.substr(at, end - at));
        if (!name.empty()) families.push_back(unquoted(name));
        at = end + 1;
    }
    return families;
}

/// Adds declarations of one importance to a list.
class Adding {
public:
    Adding(CssDeclarations& declarations, bool isImportant)
        : declarations_(declarations), isImportant_(isImportant) {}

    void add(const PropertyRow& row, StringView text) const {
        const String word = inAsciiLowerCase(text);
        const bool isOneValue = row.reading < Reading::Background;
        if (isOneValue && (word == u"inherit" || word == u"unset")) {
            return set(row.property, CssInherit{});
        }
        switch (row.reading) {
            case Reading::Word:
            case Reading::Words:
                return set(row.property, word);
            case Reading::Length:
                setLength(row.property, text);
                return;
            case Reading::WordOrLength:
                if (!setLength(row.property, text)) set(row.property, word);
                return;
            case Reading::Color:
                return setColor(row.property, text, word);
            case Reading::Families:
                return set(row.property, familiesOf(text));
            case Reading::Background:
                return addBackground(text);
            case Reading::Font:
                return addFont(text);
            case Reading::Sides:
                return addSides(row.property, cssParts(text));
            case Reading::SideEnds:
                return addEnds(row.property, cssParts(text));
        }
    }

private:
    void set(CssProperty property, CssValue value) const {
        const auto same = std::ranges::find_if(declarations_, [&](const CssDeclaration& other) {
            return other.property == property && other.isImportant == isImportant_;
        });
        if (same != declarations_.end()) declarations_.erase(same);
        declarations_.push_back({property, isImportant_, std::move(value)});
    }

    bool setLength(CssProperty property, StringView text) const {
        const auto length = cssLengthOf(text);
        if (length) set(property, *length);
        return length.has_value();
    }

    void setColor(CssProperty property, StringView text, const String& word) const {
        if (const auto color = cssColorOf(text)) {
            set(property, *color);
        } else if (word == u"currentcolor") {
            set(property, CssInherit{});
        } else if (word == u"canvastext" || word == u"windowtext" || word == u"initial") {
            set(property, word);
        }
    }

    /// An image hides nothing that rich text could show.
    void addBackground(StringView text) const {
        for (const StringView part : cssParts(text)) {
            if (const auto color = cssColorOf(part)) set(CssProperty::BackgroundColor, *color);
        }
        if (equalsIgnoringAsciiCase(text, u"none")) {
            set(CssProperty::BackgroundColor, Color::clearColor());
        }
    }

    /// Style and weight, the size with an optional line height, and families.
    void addFont(StringView text) const {
        if (equalsIgnoringAsciiCase(text, u"inherit")) {
            for (const CssProperty part : {CssProperty::FontFamily, CssProperty::FontSize,
                                           CssProperty::FontWeight, CssProperty::FontStyle}) {
                set(part, CssInherit{});
            }
            return;
        }
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = findInCss(text, at, u" \t\n\f");
            const StringView part = text.substr(at, end - at);
            const StringView size = part.substr(0, part.find(u'/'));
            const auto length = cssLengthOf(size);
            const String word = inAsciiLowerCase(part);
            at = end + 1;
            if (word == u"italic" || word == u"oblique") {
                set(CssProperty::FontStyle, word);
            } else if (word == u"bold" || word == u"bolder" || word == u"lighter") {
                set(CssProperty::FontWeight, word);
            } else if (length && length->unit == CssUnit::Number) {
                set(CssProperty::FontWeight, *length);
            } else if (length) {
                set(CssProperty::FontSize, *length);
                if (size.size() < part.size()) {
                    setLength(CssProperty::LineHeight, part.substr(size.size() + 1));
                }
                if (at < text.size()) set(CssProperty::FontFamily, familiesOf(text.substr(at)));
                return;
            }
        }
    }

    void addSides(CssProperty first, const std::vector<StringView>& parts) const {
        if (parts.empty() || parts.size() > 4) return;
        const StringView right = parts[parts.size() > 1 ? 1 : 0];
        const StringView bottom = parts[parts.size() > 2 ? 2 : 0];
        const StringView left = parts.size() > 3 ? parts[3] : right;
        const bool isMargin = first == CssProperty::MarginTop;
        if (isMargin) setLength(CssProperty::MarginTop, parts[0]);
        setLength(isMargin ? CssProperty::MarginBottom : CssProperty::PaddingBottom, bottom);
        setLength(isMargin ? CssProperty::MarginRight : CssProperty::PaddingRight, right);
        setLength(isMargin ? CssProperty::MarginLeft : CssProperty::PaddingLeft, left);
    }

    void addEnds(CssProperty first, const std::vector<StringView>& parts) const {
        if (parts.empty() || parts.size() > 2) return;
        const bool isMargin = first == CssProperty::MarginLeft;
        setLength(first, parts.front());
        setLength(isMargin ? CssProperty::MarginRight : CssProperty::PaddingRight, parts.back());
    }

    CssDeclarations& declarations_;
    bool isImportant_;
};

}  // namespace

void addCssDeclaration(CssDeclarations& declarations, StringView property, StringView value) {
    const String name = inAsciiLowerCase(property);
    const auto* row = std::ranges::lower_bound(kProperties, name, {}, &PropertyRow::name);
    if (row == std::end(kProperties) || row->name != name) return;
    const auto [text, isImportant] = withoutImportance(value);
    if (!text.empty()) Adding(declarations, isImportant).add(*row, text);
}

CssDeclarations cssDeclarationsOf(StringView text) {
    CssDeclarations declarations;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = findInCss(text, at, u";");
        const StringView declaration = text.substr(at, end - at);
        const std::size_t colon = declaration.find(u':');
        if (colon != StringView::npos) {
            addCssDeclaration(declarations, trimmed(declaration.substr(0, colon)),
                              trimmed(declaration.substr(colon + 1)));
        }
        at = end + 1;
    }
    return declarations;
}

}  // namespace QZCore
