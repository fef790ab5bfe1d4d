#include "QZCore/markdown/detection.h"

#include <algorithm>
#include <optional>

#include "markdown/escape_scanner.h"
#include "markdown/expression_matches.h"
#include "markdown/list_title.h"

namespace QZCore {

namespace {

constexpr StringView kBlankLine = u"\n\n";

std::optional<SpanMatch::Span> firstMatch(StringView key, StringView text,
                                          const MarkdownSyntax& syntax) {
    const MarkdownExpression* expression = syntax.expressionForKey(key);
    if (expression == nullptr) return std::nullopt;
    std::vector<SpanMatch> matches;
    findMatches(*expression, text, matches, 1);
    if (matches.empty()) return std::nullopt;
    return matches.front().whole;
}

bool coversAll(SpanMatch::Span match, StringView text) {
    return match.end - match.start == text.size();
}

bool containsRichText(StringView text, const MarkdownSyntax& syntax) {
    return std::ranges::any_of(kMarkdownRichTextKeys, [&](StringView key) {
        return firstMatch(key, text, syntax).has_value();
    });
}

// Whether `list`, the first list of `text`, is all there is but for a title.
bool isListAlone(SpanMatch::Span list, StringView text) {
    if (coversAll(list, text)) return true;
    if (text.find(kBlankLine, list.start) != StringView::npos) return false;
    if (list.start == 0) return true;
    return isListTitle(text.substr(0, list.start));
}

bool isTableAlone(SpanMatch::Span table, StringView text) {
    return coversAll(table, text) || text.find(kBlankLine) == StringView::npos;
}

}  // namespace

bool containsMarkdownOptions(StringView text, std::uint32_t options, bool onlyOne,
                             const MarkdownSyntax& syntax) {
    String storage;
    const StringView trimmed = trimmedOfWhitespaceAndNewlines(coverEscapes(text, storage));
    if ((options & kMarkdownOptionRichText) != 0 && containsRichText(trimmed, syntax)) return true;
    if ((options & kMarkdownOptionList) != 0) {
        const auto list = firstMatch(kMarkdownList, trimmed, syntax);
        return list && (!onlyOne || isListAlone(*list, trimmed));
    }
    if ((options & kMarkdownOptionTable) != 0) {
        const auto table = firstMatch(kMarkdownTable, trimmed, syntax);
        return table && (!onlyOne || isTableAlone(*table, trimmed));
    }
    return false;
}

bool containsMarkdown(StringView text, const MarkdownSyntax& syntax) {
    return containsMarkdownOptions(text, kMarkdownOptionsAll, false, syntax);
}

bool containsMarkdownRichText(StringView text, const MarkdownSyntax& syntax) {
    return containsMarkdownOptions(text, kMarkdownOptionRichText, false, syntax);
}

bool containsMarkdownListOnly(StringView text, const MarkdownSyntax& syntax) {
    return containsMarkdownOptions(text, kMarkdownOptionList, true, syntax);
}

bool containsMarkdownTableOnly(StringView text, const MarkdownSyntax& syntax) {
    return containsMarkdownOptions(text, kMarkdownOptionTable, true, syntax);
}

// ---- With the table of the process ------------------------------------------

bool containsMarkdownOptions(StringView text, std::uint32_t options, bool onlyOne) {
    return containsMarkdownOptions(text, options, onlyOne, allMarkdownRegex());
}

bool containsMarkdown(StringView text) { return containsMarkdown(text, allMarkdownRegex()); }

bool containsMarkdownRichText(StringView text) {
    return containsMarkdownRichText(text, allMarkdownRegex());
}

bool containsMarkdownListOnly(StringView text) {
    return containsMarkdownListOnly(text, allMarkdownRegex());
}

bool containsMarkdownTableOnly(StringView text) {
    return containsMarkdownTableOnly(text, allMarkdownRegex());
}

}  // namespace QZCore
