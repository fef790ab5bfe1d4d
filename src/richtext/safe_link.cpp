#include "QZCore/richtext/html.h"

#include <algorithm>
#include <array>

namespace QZCore {

String schemeOf(StringView target) {
    const std::size_t end = target.find_first_of(u":/?#");
    if (end == StringView::npos || target[end] != u':') return {};
    String scheme;
    for (const char16_t unit : target.substr(0, end)) {
        if (isControl(unit) || unit == u' ') continue;
        const bool upper = unit >= u'A' && unit <= u'Z';
        scheme.push_back(static_cast<char16_t>(upper ? unit - u'A' + u'a' : unit));
    }
    return scheme;
}

std::optional<String> safeLink(const TextAttributes& attributes) {
    constexpr std::array<StringView, 5> kSafeSchemes{u"", u"http", u"https", u"mailto", u"file"};
    const Value* link = attributes.link();
    if (link == nullptr) return std::nullopt;
    String target = link->stringValue();
    const bool hasScheme = !schemeOf(target).empty();
    // An empty name before the colon is no scheme, but no browser agrees with
    // the next one on what it is.
    if (!hasScheme && target.find(u':') < target.find_first_of(u"/?#")) return std::nullopt;
    if (std::ranges::count(kSafeSchemes, schemeOf(target)) == 0) return std::nullopt;
    return target;
}

}  // namespace QZCore
