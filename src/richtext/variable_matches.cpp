#include "richtext/variable_matches.h"

#include <algorithm>

#include "QZCore/platform/regex.h"
#include "codecs/literal_search.h"

namespace QZCore {
namespace {

bool isPattern(StringView name) {
    return name.find_first_of(u"\\*?+[](){}^$|.") != StringView::npos;
}

/// `text` for an expression in which it stands for itself, in a set of
/// characters or outside.
String escapedPattern(StringView text) {
    String escaped;
    for (const char16_t unit : text) {
        const bool isWordUnit = (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') ||
                                (unit >= u'a' && unit <= u'z') || unit == u'_';
        if (unit < 0x80 && !isWordUnit) escaped += u'\\';
        escaped += unit;
    }
    return escaped;
}

/// Where `part` occurs, overlaps included.
std::vector<std::size_t> occurrences(StringView text, StringView part) {
    std::vector<std::size_t> found;
    LiteralSearch search(text, part);
    for (std::size_t at = search.next(); at != kNotFound; at = search.next()) found.push_back(at);
    return found;
}

}  // namespace

VariableSearch::VariableSearch(StringView text, StringView prefix, StringView suffix)
    : text_(text),
      prefix_(prefix),
      suffix_(suffix),
      endings_(CharacterSet::charactersInString(suffix)),
      prefixes_(occurrences(text, prefix)) {}

std::vector<VariableMatch> VariableSearch::matches(StringView name) const {
    std::vector<std::size_t> tails;
    for (const std::size_t prefix : prefixes_) {
        const std::size_t start = prefix + prefix_.size();
        if (text_.substr(start).starts_with(name)) tails.push_back(start + name.size());
    }
    if (tails.empty() || suffix_.empty()) return {};
    return isPattern(name) ? patternMatches(name)
                           : literalMatches(tails, prefix_.size() + name.size());
}

std::vector<VariableMatch> VariableSearch::patternMatches(StringView name) const {
    const String end = escapedPattern(suffix_);
    const auto expression = RegularExpression::compile(escapedPattern(prefix_) + String(name) +
                                                       u"([^" + end + u"]*)" + end);
    if (!expression) return {};
    const std::size_t tailGroup = expression->numberOfCaptureGroups();
    std::vector<VariableMatch> matches;
    for (const RegexMatch& match : expression->matchesInString(text_)) {
        matches.push_back({match.range(), match.group(tailGroup)});
    }
    return matches;
}

// The same matches as those of the expression, in linear time: a tail ends at
// the first unit of the suffix, and is one if the suffix stands there.
std::vector<VariableMatch> VariableSearch::literalMatches(const std::vector<std::size_t>& tails,
                                                          std::size_t openingLength) const {
    std::vector<VariableMatch> matches;
    std::size_t tailEnd = 0;
    std::size_t free = 0;
    for (const std::size_t tail : tails) {
        if (tail < free + openingLength) continue;  // begins within the variable before
        tailEnd = std::max(tail, tailEnd);
        while (tailEnd < text_.size()) {
            const CodePoint next = codePointAt(text_, tailEnd);
            if (endings_.contains(next.value)) break;
            tailEnd += next.length;
        }
        if (!text_.substr(tailEnd).starts_with(suffix_)) continue;
        const std::size_t start = tail - openingLength;
        free = tailEnd + suffix_.size();
        matches.push_back({{start, free - start}, {tail, tailEnd - tail}});
    }
    return matches;
}

}  // namespace QZCore
