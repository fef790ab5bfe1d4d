#include "QZCore/codecs/parsing.h"
#include "QZCore/platform/regex.h"

namespace QZCore {

std::vector<String> componentsSeparatedByPattern(StringView text, StringView pattern) {
    std::vector<String> components;
    std::size_t start = 0;
    if (const auto expression = RegularExpression::compile(pattern)) {
        for (const RegexMatch& match : expression->matchesInString(text)) {
            components.emplace_back(text.substr(start, match.range().location - start));
            start = match.range().end();
        }
    }
    components.emplace_back(text.substr(start));
    return components;
}

}  // namespace QZCore
