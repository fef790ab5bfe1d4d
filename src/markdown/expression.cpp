#include <algorithm>
#include <utility>

#include "markdown/expression_matches.h"
#include "markdown/match_sink.h"
#include "markdown/syntax_rows.h"

namespace QZCore {

namespace {

constexpr std::size_t kMostGroups = std::size(SpanMatch{}.groups);

Range rangeOf(SpanMatch::Span span) {
    if (span.start == kNoPosition) return kNotFoundRange;
    return {span.start, span.end - span.start};
}

SpanMatch::Span spanOfRange(Range range) {
    if (range == kNotFoundRange) return {};
    return spanOf(range.location, range.end());
}

RegexMatch regexMatch(const SpanMatch& match, std::size_t numberOfGroups) {
    RegexMatch result{{rangeOf(match.whole)}};
    for (std::size_t i = 0; i < numberOfGroups; ++i) {
        result.groups.push_back(rangeOf(match.groups[i]));
    }
    return result;
}

SpanMatch spanMatch(const RegexMatch& match) {
    SpanMatch result{spanOfRange(match.range()), {}};
    for (std::size_t i = 0; i < kMostGroups; ++i) {
        result.groups[i] = spanOfRange(match.group(i + 1));
    }
    return result;
}

}  // namespace

MarkdownExpression::MarkdownExpression(const SyntaxRow& row)
    : key_(row.key),
      pattern_(row.pattern),
      options_(row.options),
      numberOfGroups_(row.numberOfGroups),
      scanner_(row.scanner) {}

MarkdownExpression::MarkdownExpression(const SyntaxRow& row, RegularExpression replacement)
    : key_(row.key),
      pattern_(replacement.pattern()),
      options_(row.options),
      numberOfGroups_(replacement.numberOfCaptureGroups()),
      scanner_(row.scanner),
      replacement_(std::move(replacement)) {}

void findMatches(const MarkdownExpression& expression, StringView text,
                 std::vector<SpanMatch>& matches, std::size_t limit) {
    if (!expression.replacement_) return scanMatches(expression.scanner_, text, matches, limit);
    if (limit == 0 || text.size() >= kNoPosition) return;
    if (limit == 1) {
        const auto first = expression.replacement_->firstMatchInString(text);
        if (first) matches.push_back(spanMatch(*first));
        return;
    }
    const std::vector<RegexMatch> found = expression.replacement_->matchesInString(text);
    for (std::size_t i = 0; i < std::min(limit, found.size()); ++i) {
        matches.push_back(spanMatch(found[i]));
    }
}

std::vector<RegexMatch> MarkdownExpression::matchesInString(StringView text) const {
    if (replacement_) return replacement_->matchesInString(text);
    std::vector<SpanMatch> found;
    scanMatches(scanner_, text, found);
    std::vector<RegexMatch> matches;
    matches.reserve(found.size());
    for (const SpanMatch& match : found) matches.push_back(regexMatch(match, numberOfGroups_));
    return matches;
}

std::optional<RegexMatch> MarkdownExpression::firstMatchInString(StringView text) const {
    if (replacement_) return replacement_->firstMatchInString(text);
    std::vector<SpanMatch> found;
    scanMatches(scanner_, text, found, 1);
    if (found.empty()) return std::nullopt;
    return regexMatch(found.front(), numberOfGroups_);
}

std::size_t MarkdownExpression::numberOfMatchesInString(StringView text) const {
    if (replacement_) return replacement_->numberOfMatchesInString(text);
    std::vector<SpanMatch> found;
    scanMatches(scanner_, text, found);
    return found.size();
}

}  // namespace QZCore
