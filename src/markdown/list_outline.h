// The items of a Markdown list, and how they nest.
#pragma once

#include <cstdint>
#include <vector>

#include "QZCore/foundation/preferences.h"
#include "QZCore/markdown/lists.h"
#include "QZCore/markdown/syntax.h"
#include "markdown/scanner.h"

namespace QZCore {

/// The number of no line.
inline constexpr std::uint32_t kNoListLine = UINT32_MAX;

/// A line of a list. Lines stand in the order of the text, which is the order
/// of the outline: an item before its sub-items.
struct ListLine {
    /// 1 for the items of the list itself, one more for each level below; 0 for
    /// a line that is no item.
    std::uint32_t level = 0;
    /// The number of the line that it is a sub-item of.
    std::uint32_t parent = kNoListLine;
    /// The place among the items of the same parent, from 1 on.
    std::uint32_t position = 0;
    bool isNumbered = false;
    /// Where the text of the item stands, without its marker.
    SpanMatch::Span text;

    [[nodiscard]] bool isItem() const { return level > 0; }
    [[nodiscard]] StringView markerFormat() const {
        return isNumbered ? kMarkdownListDecimal : kMarkdownListDisc;
    }
};

/// Replaces each line feed of `list` by a blank where a letter follows, so that
/// a wrapped line joins its item. A line feed at either end stays.
void joinWrappedLines(String& list);

/// Reads the lines of lists whose wrapped lines are joined. What is no item is
/// there too, so that nothing is lost.
class ListLineReader {
public:
    /// `listLine` is the row of single items; it must outlive this.
    ListLineReader(const MarkdownExpression& listLine, const Preferences& preferences);

    /// The lines of `list`. Valid until the next call.
    [[nodiscard]] const std::vector<ListLine>& linesOf(StringView list);

private:
    void addOtherLines(StringView list, std::size_t from, std::size_t to);

    const MarkdownExpression& listLine_;
    std::size_t blanksPerLevel_;
    std::vector<SpanMatch> items_;
    std::vector<ListLine> lines_;
};

}  // namespace QZCore
