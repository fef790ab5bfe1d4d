#include "QZCore/codecs/parsing.h"

namespace QZCore {
namespace {

bool endsLine(char16_t unit) {
    return unit == u'\n' || unit == u'\r' || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

struct Line {
    std::size_t contentsEnd = 0;
    std::size_t end = 0;
};

Line lineStartingAt(StringView text, std::size_t start) {
    std::size_t at = start;
    while (at < text.size() && !endsLine(text[at])) ++at;
    if (at == text.size()) return {at, at};
    const bool endsInTwo = text.substr(at).starts_with(u"\r\n");
    return {at, at + (endsInTwo ? 2 : 1)};
}

}  // namespace

std::vector<String> componentsSeparatedByLineSeparators(StringView text) {
    std::vector<String> components;
    // The line wanted is the one that `index` lies in.
    std::size_t index = 0;
    for (std::size_t start = 0; index < text.size();) {
        const Line line = lineStartingAt(text, start);
        if (index < line.end) {
            components.emplace_back(text.substr(start, line.contentsEnd - start));
            index = line.end + 1;
        }
        start = line.end;
    }
    return components;
}

}  // namespace QZCore
