#include "richtext/css_values.h"

#include <cmath>

namespace QZCore {
namespace {

struct UnitRow {
    StringView name;
    CssUnit unit;
    double factor;
};

constexpr UnitRow kUnits[] = {
    {u"px", CssUnit::Points, 0.75},
    {u"pt", CssUnit::Points, 1},
    {u"em", CssUnit::Em, 1},
    {u"rem", CssUnit::RootEm, 1},
    {u"%", CssUnit::Percent, 1},
    {u"", CssUnit::Number, 1},
    {u"pc", CssUnit::Points, 12},
    {u"in", CssUnit::Points, 72},
    {u"cm", CssUnit::Points, 72 / 2.54},
    {u"mm", CssUnit::Points, 7.2 / 2.54},
    {u"q", CssUnit::Points, 1.8 / 2.54},
    {u"ex", CssUnit::Em, 0.5},
    {u"ch", CssUnit::Em, 0.5},
};

bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\n' || unit == u'\f';
}

}  // namespace

std::optional<CssLength> cssLengthOf(StringView text) {
    if (text.empty() || isBlank(text.front())) return std::nullopt;
    const ReadNumber number = readDouble(text);
    if (number.length == 0 || !std::isfinite(number.value)) return std::nullopt;
    for (const UnitRow& row : kUnits) {
        if (!equalsIgnoringAsciiCase(text.substr(number.length), row.name)) continue;
        return CssLength{number.value * row.factor, row.unit};
    }
    return std::nullopt;
}

std::size_t findInCss(StringView css, std::size_t from, StringView wanted) {
    std::size_t depth = 0;
    char16_t quote = u'\0';
    for (std::size_t at = from; at < css.size(); ++at) {
        const char16_t unit = css[at];
        if (unit == u'\\') {
            ++at;
        } else if (quote != u'\0') {
            if (unit == quote) quote = u'\0';
        } else if (unit == u'"' || unit == u'\'') {
            quote = unit;
        } else if (depth == 0 && wanted.find(unit) != wanted.npos) {
            return at;
        } else if (unit == u'(' || unit == u'[') {
            ++depth;
        } else if ((unit == u')' || unit == u']') && depth > 0) {
            --depth;
        }
    }
    return css.size();
}

std::vector<StringView> cssParts(StringView text, char16_t separator) {
    const char16_t ends[] = {separator, u' ', u'\t', u'\n', u'\f', u'\0'};
    std::vector<StringView> parts;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = findInCss(text, at, StringView(ends, std::size(ends) - 1));
        if (end > at) parts.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return parts;
}

String inAsciiLowerCase(StringView text) {
    String lower(text);
    for (char16_t& unit : lower) {
        if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit | 0x20);
    }
    return lower;
}

}  // namespace QZCore
