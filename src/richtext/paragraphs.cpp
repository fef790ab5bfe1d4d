#include "richtext/paragraphs.h"

#include "foundation/unit_search.h"

namespace QZCore {
namespace {

/// Whether a paragraph ends with a unit, for one or lanes.
template <class Units>
auto endsParagraph(Units unit) {
    constexpr std::uint16_t kLineFeed = u'\n';
    constexpr std::uint16_t kReturn = u'\r';
    constexpr std::uint16_t kNextLine = 0x85;
    constexpr std::uint16_t kParagraphSeparator = 0x2029;
    return (unit == kLineFeed) | (unit == kReturn) | (unit == kNextLine) |
           (unit == kParagraphSeparator);
}

}  // namespace

std::vector<Range> paragraphsOf(StringView text) {
    std::vector<Range> paragraphs;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end =
            findFirst(text, start, [](auto unit) { return endsParagraph(unit); });
        paragraphs.push_back({start, end - start});
        start = text.substr(end, 2) == u"\r\n" ? end + 2 : end + 1;
    }
    return paragraphs;
}

}  // namespace QZCore
