#include "richtext/paragraphs.h"

#include <algorithm>

namespace QZCore {

std::vector<Range> paragraphsOf(StringView text) {
    constexpr StringView kEnds = u"\n\r\u0085\u2029";
    std::vector<Range> paragraphs;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find_first_of(kEnds, start), text.size());
        paragraphs.push_back({start, end - start});
        start = text.substr(end, 2) == u"\r\n" ? end + 2 : end + 1;
    }
    return paragraphs;
}

}  // namespace QZCore
