#include "QZCore/codecs/comparing.h"
#include "QZCore/platform/regex.h"
#include "codecs/folded_search.h"

namespace QZCore {
namespace {

bool containsPattern(StringView text, StringView pattern, std::uint32_t options) {
    const bool ignoresCase = (options & kSearchCaseInsensitive) != 0;
    const auto expression =
        RegularExpression::compile(pattern, ignoresCase ? kRegexCaseInsensitive : kRegexNoOptions);
    if (!expression) return false;
    const bool anchored = (options & kSearchAnchored) != 0;
    const auto match =
        anchored ? expression->anchoredMatchInString(text) : expression->firstMatchInString(text);
    return match && match->range().length > 0;
}

Folding foldingFor(std::uint32_t options) {
    return {.ignoresCase = (options & kSearchCaseInsensitive) != 0,
            .ignoresDiacritics = (options & kSearchDiacriticInsensitive) != 0,
            .ignoresWidth = (options & kSearchWidthInsensitive) != 0,
            .isLiteral = (options & kSearchLiteral) != 0};
}

/// Whether an occurrence in a text of `length` units is where the options
/// want it.
bool isInPlace(Range occurrence, std::size_t length, std::uint32_t options) {
    if ((options & kSearchAnchored) == 0) return true;
    const bool atEnd = (options & kSearchBackwards) != 0;
    return atEnd ? occurrence.end() == length : occurrence.location == 0;
}

}  // namespace

bool containsString(StringView text, StringView string, std::uint32_t options) {
    if ((options & kSearchRegularExpression) != 0) return containsPattern(text, string, options);
    FoldedSearch search(text, string, foldingFor(options));
    while (const auto occurrence = search.next()) {
        if (isInPlace(*occurrence, text.size(), options)) return true;
    }
    return false;
}

bool containsString(StringView text, StringView string, std::uint32_t options, Range range) {
    const Range searched = clampedRange(range, text.size());
    return containsString(text.substr(searched.location, searched.length), string, options);
}

bool isCaseInsensitiveEqualToString(StringView text, StringView string) {
    return caseFolded(text) == caseFolded(string);
}

}  // namespace QZCore
