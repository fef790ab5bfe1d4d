// Lists and their item lines.
#include <optional>

#include "foundation/unit_search.h"
#include "markdown/row_scanners.h"
#include "platform/characters.h"

namespace QZCore {

namespace {

struct ListItem {
    std::size_t marker = 0;
    std::size_t markerEnd = 0;
    std::size_t content = 0;
};

bool isBlankAt(StringView text, std::size_t index) {
    return index < text.size() && (text[index] == u' ' || text[index] == u'\t');
}

// The end of the bullet or the number with its full stop at `start`; `start`
// when there is neither.
std::size_t endOfMarker(StringView text, std::size_t start) {
    const char16_t first = text[start];
    if (first == u'*' || first == u'+' || first == u'-') return start + 1;
    std::size_t end = start;
    while (end < text.size()) {
        const CodePoint next = codePointAt(text, end);
        if (!isDecimalDigit(next.value)) break;
        end += next.length;
    }
    const bool isNumber = end > start && end < text.size() && text[end] == u'.';
    return isNumber ? end + 1 : start;
}

// The item whose line starts at `lineStart`. Its content has not been looked at
// and is at least one unit long.
std::optional<ListItem> listItemAt(StringView text, std::size_t lineStart) {
    std::size_t marker = lineStart;
    while (isBlankAt(text, marker)) ++marker;
    if (marker == text.size()) return std::nullopt;
    const std::size_t end = endOfMarker(text, marker);
    if (end == marker || !isBlankAt(text, end) || end + 1 == text.size()) return std::nullopt;
    return ListItem{marker, end, end + 1};
}

// The start of the line behind the one that `from` lies in, or the length of
// the text.
std::size_t nextLineStart(StringView text, std::size_t from) {
    const std::size_t end = findLineEnd(text, from);
    if (end == text.size()) return end;
    return text.substr(end, 2) == u"\r\n" ? end + 2 : end + 1;
}

// The first two line feeds from `from` on, or the length of the text. A line
// feed that belongs to a carriage return does not count.
std::size_t findBlankLine(StringView text, std::size_t from) {
    for (;; ++from) {
        from = findUnit(text, from, u'\n');
        if (from == text.size()) return from;
        if (text[from - 1] != u'\r' && text.substr(from + 1, 1) == u"\n") return from;
    }
}

}  // namespace

void scanLists(StringView text, MatchSink& sink) {
    constexpr std::size_t kBlankLineLength = 2;
    std::size_t line = 0;
    while (line < text.size()) {
        const std::optional<ListItem> item = listItemAt(text, line);
        if (!item) {
            line = nextLineStart(text, line);
            continue;
        }
        const std::size_t end = findBlankLine(text, item->content + 1);
        const std::size_t matchEnd = end == text.size() ? end : end + kBlankLineLength;
        const SpanMatch match{spanOf(line, matchEnd),
                              {spanOf(item->marker, item->markerEnd), spanOf(item->content, end)}};
        if (!sink.add(match)) return;
        line = matchEnd;
    }
}

void scanListLines(StringView text, MatchSink& sink) {
    for (std::size_t line = 0; line < text.size(); line = nextLineStart(text, line)) {
        const std::optional<ListItem> item = listItemAt(text, line);
        if (!item) continue;
        const std::size_t end = findLineEnd(text, item->content);
        if (end == item->content) continue;
        const SpanMatch match{spanOf(line, end),
                              {spanOf(line, item->marker), spanOf(item->marker, item->markerEnd),
                               spanOf(item->content, end)}};
        if (!sink.add(match)) return;
    }
}

}  // namespace QZCore
