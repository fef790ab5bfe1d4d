#include "richtext/html_elements.h"

#include <algorithm>
#include <unordered_map>

namespace QZCore {
namespace {

static_assert(std::ranges::is_sorted(kHtmlElements, {}, &HtmlElementRow::name));

using Numbers = std::unordered_map<StringView, std::uint32_t>;

const Numbers& allNumbers() {
    static const Numbers& numbers = *[] {
        auto* made = new Numbers;
        for (std::uint32_t i = 0; i < kHtmlElementCount; ++i)
            made->emplace(kHtmlElements[i].name, i);
        return made;
    }();
    return numbers;
}

}  // namespace

std::optional<std::uint32_t> findHtmlElement(StringView name) {
    const auto number = allNumbers().find(name);
    return number == allNumbers().end() ? std::nullopt : std::optional(number->second);
}

}  // namespace QZCore
