#include "markdown/scanner.h"

#include "markdown/match_sink.h"
#include "markdown/row_scanners.h"

namespace QZCore {

namespace {

void scan(ScannerKind kind, StringView text, MatchSink& sink) {
    using enum DelimiterBoundary;
    switch (kind) {
        case ScannerKind::Escape:
            return scanEscapes(text, sink);
        case ScannerKind::ItalicUnderscore:
            return scanDelimiterPairs(text, {u'_', 1, Word}, sink);
        case ScannerKind::ItalicUnderscoreIntraword:
            return scanDelimiterPairs(text, {u'_', 1}, sink);
        case ScannerKind::ItalicAsterisk:
            return scanDelimiterPairs(text, {u'*', 1}, sink);
        case ScannerKind::Bold:
            return scanDelimiterPairs(text, {u'*', 2}, sink);
        case ScannerKind::BoldItalic:
            return scanBoldItalic(text, sink);
        case ScannerKind::Underline:
            return scanDelimiterPairs(text, {u'_', 2}, sink);
        case ScannerKind::Strikethrough:
            return scanDelimiterPairs(text, {u'~', 2}, sink);
        case ScannerKind::HighlightEquals:
            return scanDelimiterPairs(text, {u'=', 2}, sink);
        case ScannerKind::HighlightCaret:
            return scanDelimiterPairs(text, {u'^', 2}, sink);
        case ScannerKind::HighlightColon:
            return scanDelimiterPairs(text, {u':', 2}, sink);
        case ScannerKind::InlineCode:
            return scanInlineCode(text, sink);
        case ScannerKind::Link:
            return scanLinks(text, sink);
        case ScannerKind::Headers:
            return scanHeaders(text, sink);
        case ScannerKind::HeadersNoSpace:
            return scanHeadersNoSpace(text, sink);
        case ScannerKind::Emoji:
            return scanEmoji(text, sink);
        case ScannerKind::CodeBlock:
            return scanCodeBlocks(text, sink);
        case ScannerKind::BlockQuote:
            return scanBlockQuotes(text, sink);
        case ScannerKind::List:
            return scanLists(text, sink);
        case ScannerKind::ListLine:
            return scanListLines(text, sink);
        case ScannerKind::Table:
            return scanTables(text, sink);
        case ScannerKind::InlineMeta:
            return scanInlineMeta(text, sink);
    }
}

}  // namespace

void scanMatches(ScannerKind kind, StringView text, std::vector<SpanMatch>& matches,
                 std::size_t limit) {
    if (limit == 0 || text.size() >= kNoPosition) return;
    MatchSink sink(matches, limit);
    scan(kind, text, sink);
}

}  // namespace QZCore
