// Search for a text up to differences that do not count.
#pragma once

#include <optional>

#include "QZCore/foundation/range.h"
#include "codecs/literal_search.h"
#include "platform/folded_text.h"

namespace QZCore {

/// Walks through the occurrences of `pattern` in `text`, of which each begins
/// and ends with a segment of the folded text.
class FoldedSearch {
public:
    FoldedSearch(StringView text, StringView pattern, Folding folding)
        : text_(foldedText(text, folding)),
          pattern_(foldedText(pattern, folding).units),
          search_(text_.units, pattern_) {}
    FoldedSearch(const FoldedSearch&) = delete;
    FoldedSearch& operator=(const FoldedSearch&) = delete;

    /// The range of the next occurrence in the text, never empty. Occurrences
    /// may overlap.
    std::optional<Range> next() {
        for (std::size_t start; (start = search_.next()) != kNotFound;) {
            const std::size_t end = start + pattern_.size();
            if (!text_.isBoundary(start) || !text_.isBoundary(end)) continue;
            return Range{text_.sources[start], text_.sources[end] - text_.sources[start]};
        }
        return std::nullopt;
    }

    /// Makes the next occurrence start behind the one found last.
    void skipOverlaps() { search_.skipOverlaps(); }

private:
    const FoldedText text_;
    const String pattern_;
    LiteralSearch search_;
};

}  // namespace QZCore
