// Headers and block quotes: a mark at the start of a line and the rest of it.
#include <algorithm>

#include "foundation/unit_search.h"
#include "markdown/row_scanners.h"

namespace QZCore {

namespace {

constexpr std::size_t kHighestLevel = 6;

// The end of the hashes from `start` on, at most one for each level.
std::size_t endOfHashes(StringView text, std::size_t start) {
    return start + skipUnit(text.substr(start, kHighestLevel), 0, u'#');
}

// Calls `scanLine` with each line start that holds `mark`, until it returns
// false; it returns where to go on through its argument.
template <class ScanLine>
void forEachMarkedLine(StringView text, char16_t mark, ScanLine scanLine) {
    std::size_t position = 0;
    while ((position = findUnit(text, position, mark)) < text.size()) {
        const std::size_t start = position++;
        if (isLineStart(text, start) && !scanLine(start, position)) return;
    }
}

// The start of the title behind any number of blanks. A title has at least one
// character, so a line that ends in blanks keeps the last of them as its title;
// `marksEnd` itself when there is nothing at all.
std::size_t titleStart(StringView text, std::size_t marksEnd, std::size_t lineEnd) {
    const std::size_t start = skipUnit(text, marksEnd, u' ');
    return start == lineEnd && start > marksEnd ? start - 1 : start;
}

}  // namespace

void scanHeaders(StringView text, MatchSink& sink) {
    forEachMarkedLine(text, u'#', [&](std::size_t start, std::size_t& next) {
        const std::size_t hashesEnd = endOfHashes(text, start);
        if (text.substr(hashesEnd, 1) != u" ") return true;
        const std::size_t title = hashesEnd + 1;
        const std::size_t lineEnd = findLineEnd(text, title);
        if (lineEnd == title) return true;
        next = lineEnd;
        return sink.add(
            {spanOf(start, lineEnd), {spanOf(start, hashesEnd), spanOf(title, lineEnd)}});
    });
}

void scanHeadersNoSpace(StringView text, MatchSink& sink) {
    forEachMarkedLine(text, u'#', [&](std::size_t start, std::size_t& next) {
        std::size_t hashesEnd = endOfHashes(text, start);
        const std::size_t lineEnd = findLineEnd(text, hashesEnd);
        std::size_t title = titleStart(text, hashesEnd, lineEnd);
        // With nothing behind the hashes, the last one is the title.
        if (title == lineEnd) title = --hashesEnd;
        if (hashesEnd == start) return true;
        next = lineEnd;
        return sink.add(
            {spanOf(start, lineEnd), {spanOf(start, hashesEnd), spanOf(title, lineEnd)}});
    });
}

void scanBlockQuotes(StringView text, MatchSink& sink) {
    forEachMarkedLine(text, u'>', [&](std::size_t start, std::size_t& next) {
        const std::size_t lineEnd = findLineEnd(text, start);
        const std::size_t title = titleStart(text, start + 1, lineEnd);
        if (title == lineEnd) return true;
        next = lineEnd;
        return sink.add(
            {spanOf(start, lineEnd), {spanOf(start, start + 1), spanOf(title, lineEnd)}});
    });
}

}  // namespace QZCore
