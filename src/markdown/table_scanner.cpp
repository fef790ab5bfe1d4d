// Separator lines of tables.
#include "foundation/unit_search.h"
#include "markdown/row_scanners.h"

namespace QZCore {

namespace {

bool isRule(char16_t unit) {
    return unit == u'|' || unit == u'-' || unit == u'+' || unit == u':' || unit == u'.';
}

bool isRuleOrBlank(char16_t unit) { return isRule(unit) || unit == u' '; }

}  // namespace

// The match is a stretch of rule characters and blanks from the start of a line
// on, with a bar behind its first character. The search goes from bar to bar and
// looks at each stretch once.
void scanTables(StringView text, MatchSink& sink) {
    std::size_t searched = 0;
    std::size_t bar = 0;
    while ((bar = findUnit(text, searched, u'|')) < text.size()) {
        std::size_t start = bar;
        while (start > searched && isRuleOrBlank(text[start - 1])) --start;
        std::size_t end = bar + 1;
        while (end < text.size() && isRuleOrBlank(text[end])) ++end;
        searched = end;
        const StringView behindFirst = text.substr(start + 1, end - start - 1);
        if (!isLineStart(text, start) || !isRule(text[start])) continue;
        if (behindFirst.find(u'|') == StringView::npos) continue;
        if (!sink.add({spanOf(start, end), {}})) return;
    }
}

}  // namespace QZCore
