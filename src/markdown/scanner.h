// Finds the constructs of the Markdown dialect in a text.
//
// Each construct is defined by a regular expression; each has a scanner here
// that finds exactly the matches of that expression, capture groups included,
// in time linear in the text, whatever the text. Searched as expressions, a
// line of some thousand unmatched delimiters would take seconds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The position of a capture group that took no part in a match.
inline constexpr std::uint32_t kNoPosition = UINT32_MAX;

/// One match and up to three capture groups.
struct SpanMatch {
    /// The units from `start` up to, not including, `end`.
    struct Span {
        std::uint32_t start = kNoPosition;
        std::uint32_t end = kNoPosition;

        /// Exact comparison of both positions.
        friend constexpr bool operator==(const Span&, const Span&) = default;
    };

    Span whole;
    Span groups[3];

    /// Exact comparison of all positions.
    friend constexpr bool operator==(const SpanMatch&, const SpanMatch&) = default;
};

/// The constructs, and the variants of those that have two.
enum class ScannerKind {
    Escape,
    ItalicUnderscore,
    ItalicUnderscoreIntraword,
    ItalicAsterisk,
    Bold,
    BoldItalic,
    Underline,
    Strikethrough,
    HighlightEquals,
    HighlightCaret,
    HighlightColon,
    InlineCode,
    Link,
    Headers,
    HeadersNoSpace,
    Emoji,
    CodeBlock,
    BlockQuote,
    List,
    ListLine,
    Table,
    InlineMeta,
};

/// Appends the matches in `text`, which do not overlap, to `matches` in their
/// order, `limit` of them at most. A text of 2^32 - 1 units or more, whose
/// positions a `SpanMatch` cannot hold, has no matches.
void scanMatches(ScannerKind kind, StringView text, std::vector<SpanMatch>& matches,
                 std::size_t limit = SIZE_MAX);

}  // namespace QZCore
