#include <algorithm>
#include <utility>

#include "QZCore/platform/regex.h"
#include "platform/icu_search.h"
#include "platform/regex_template.h"

namespace QZCore {

struct RegularExpression::Compiled {
    std::unique_ptr<const icu::RegexPattern> engine;
    String pattern;
    std::uint32_t options = 0;
    std::int32_t budget = 0;
    std::size_t numberOfCaptureGroups = 0;
};

namespace {

constexpr std::uint32_t kKnownOptions =
    kRegexCaseInsensitive | kRegexDotMatchesLineSeparators | kRegexAnchorsMatchLines;

std::uint32_t engineFlags(std::uint32_t options) {
    std::uint32_t flags = 0;
    if ((options & kRegexCaseInsensitive) != 0) flags |= UREGEX_CASE_INSENSITIVE;
    if ((options & kRegexDotMatchesLineSeparators) != 0) flags |= UREGEX_DOTALL;
    if ((options & kRegexAnchorsMatchLines) != 0) flags |= UREGEX_MULTILINE;
    return flags;
}

/// Whether a pattern names the first half of a surrogate pair without the other,
/// as itself or escaped. The engine would find such a literal within a pair, and
/// then lose the start of what it repeats and read on before the text.
bool namesHalfOfPair(const icu::UnicodeString& pattern) {
    for (std::int32_t at = 0; at < pattern.length();) {
        UChar32 named = pattern.char32At(at);
        at += U16_LENGTH(named);
        if (named == u'\\') named = pattern.unescapeAt(at);
        if (U_IS_LEAD(named)) return true;
    }
    return false;
}

Range whole(StringView text) { return {0, text.size()}; }

}  // namespace

RegularExpression::RegularExpression(std::shared_ptr<const Compiled> compiled)
    : compiled_(std::move(compiled)) {}

std::optional<RegularExpression> RegularExpression::compile(StringView pattern,
                                                            std::uint32_t options,
                                                            std::int32_t budget) {
    if ((options & ~kKnownOptions) != 0) return std::nullopt;
    // The engine would find the empty pattern everywhere; here it is no expression,
    // so that an empty setting does not change every text.
    if (pattern.empty() || pattern.size() > kLongestRegexText) return std::nullopt;
    const icu::UnicodeString source(pattern.data(), static_cast<std::int32_t>(pattern.size()));
    if (namesHalfOfPair(source)) return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    UParseError position;
    std::unique_ptr<const icu::RegexPattern> engine(
        icu::RegexPattern::compile(source, engineFlags(options), position, status));
    if (U_FAILURE(status)) return std::nullopt;
    const std::unique_ptr<icu::RegexMatcher> matcher(engine->matcher(status));
    if (U_FAILURE(status)) return std::nullopt;
    const auto groups = static_cast<std::size_t>(matcher->groupCount());
    return RegularExpression(std::make_shared<const Compiled>(
        Compiled{std::move(engine), String(pattern), options, std::max(budget, 1), groups}));
}

const String& RegularExpression::pattern() const { return compiled_->pattern; }

std::uint32_t RegularExpression::options() const { return compiled_->options; }

std::size_t RegularExpression::numberOfCaptureGroups() const {
    return compiled_->numberOfCaptureGroups;
}

std::vector<RegexMatch> RegularExpression::matchesInString(StringView text, Range range) const {
    RegexSearch search(*compiled_->engine, compiled_->budget, text, range);
    std::vector<RegexMatch> matches;
    while (search.findNext()) matches.push_back(search.match());
    return matches;
}

std::vector<RegexMatch> RegularExpression::matchesInString(StringView text) const {
    return matchesInString(text, whole(text));
}

std::optional<RegexMatch> RegularExpression::firstMatchInString(StringView text,
                                                                Range range) const {
    RegexSearch search(*compiled_->engine, compiled_->budget, text, range);
    if (!search.findNext()) return std::nullopt;
    return search.match();
}

std::optional<RegexMatch> RegularExpression::firstMatchInString(StringView text) const {
    return firstMatchInString(text, whole(text));
}

std::optional<RegexMatch> RegularExpression::anchoredMatchInString(StringView text,
                                                                   Range range) const {
    RegexSearch search(*compiled_->engine, compiled_->budget, text, range);
    if (!search.matchAtStart()) return std::nullopt;
    return search.match();
}

std::optional<RegexMatch> RegularExpression::anchoredMatchInString(StringView text) const {
    return anchoredMatchInString(text, whole(text));
}

std::size_t RegularExpression::numberOfMatchesInString(StringView text, Range range) const {
    RegexSearch search(*compiled_->engine, compiled_->budget, text, range);
    std::size_t count = 0;
    while (search.findNext()) ++count;
    return count;
}

std::size_t RegularExpression::numberOfMatchesInString(StringView text) const {
    return numberOfMatchesInString(text, whole(text));
}

String RegularExpression::stringByReplacingMatchesInString(StringView text, Range range,
                                                           StringView withTemplate) const {
    const ReplacementTemplate replacement(withTemplate, compiled_->numberOfCaptureGroups);
    RegexSearch search(*compiled_->engine, compiled_->budget, text, range);
    String result;
    std::size_t copied = 0;
    while (search.findNext()) {
        const RegexMatch match = search.match();
        result.append(text, copied, match.range().location - copied);
        replacement.appendTo(result, text, match);
        copied = match.range().end();
    }
    return result.append(text, copied);
}

String RegularExpression::stringByReplacingMatchesInString(StringView text,
                                                           StringView withTemplate) const {
    return stringByReplacingMatchesInString(text, whole(text), withTemplate);
}

}  // namespace QZCore
