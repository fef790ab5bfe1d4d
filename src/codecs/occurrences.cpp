#include <algorithm>

#include "QZCore/codecs/comparing.h"
#include "codecs/literal_search.h"

namespace QZCore {

std::size_t countOccurrencesOfString(StringView text, StringView string) {
    std::size_t count = 0;
    LiteralSearch search(text, string);
    while (search.next() != kNotFound) {
        ++count;
        search.skipOverlaps();
    }
    return count;
}

bool stringContainsStringFromArray(StringView text, const std::vector<String>& strings) {
    return std::ranges::any_of(strings, [text](const String& string) {
        return LiteralSearch(text, string).next() != kNotFound;
    });
}

bool containsNonWhitespace(StringView text) {
    return !std::ranges::all_of(text, isWhitespaceOrNewline);
}

}  // namespace QZCore
