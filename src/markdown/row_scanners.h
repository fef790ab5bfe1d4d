// The scanners of the single constructs. Each finds what its regular expression
// finds; `scanner.h` is their common door.
#pragma once

#include "QZCore/foundation/text.h"
#include "markdown/match_sink.h"

namespace QZCore {

/// What must lie outside a pair of delimiters.
enum class DelimiterBoundary {
    None,
    Word,  // no word character before the opening and after the closing one
};

/// The delimiters of a pair: exactly `length` times `unit`.
struct DelimiterStyle {
    char16_t unit = u'*';
    std::size_t length = 1;
    DelimiterBoundary boundary = DelimiterBoundary::None;
};

/// Group 0: the text between the delimiters.
void scanDelimiterPairs(StringView text, DelimiterStyle style, MatchSink& sink);

/// Group 0: the match; 1 and 2: the text between asterisks and underscores.
void scanBoldItalic(StringView text, MatchSink& sink);

/// Group 0: the match.
void scanEscapes(StringView text, MatchSink& sink);

/// Group 0: the opening backticks; 1: the code.
void scanInlineCode(StringView text, MatchSink& sink);

/// Group 0: the code; 1: the closing fence.
void scanCodeBlocks(StringView text, MatchSink& sink);

/// Group 0: the link text; 1: the target.
void scanLinks(StringView text, MatchSink& sink);

/// Group 0: the hashes; 1: the title.
void scanHeaders(StringView text, MatchSink& sink);

/// The same with any number of blanks behind the hashes.
void scanHeadersNoSpace(StringView text, MatchSink& sink);

/// Group 0: the mark; 1: the quoted line.
void scanBlockQuotes(StringView text, MatchSink& sink);

/// Group 0: the marker of the first item; 1: the rest of the list.
void scanLists(StringView text, MatchSink& sink);

/// Group 0: the indentation; 1: the marker; 2: the item.
void scanListLines(StringView text, MatchSink& sink);

/// No groups.
void scanTables(StringView text, MatchSink& sink);

/// Group 0: the short code.
void scanEmoji(StringView text, MatchSink& sink);

/// Group 0: the tag with its sign.
void scanInlineMeta(StringView text, MatchSink& sink);

}  // namespace QZCore
