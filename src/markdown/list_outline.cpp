#include "markdown/list_outline.h"

#include <algorithm>

#include "foundation/unit_search.h"
#include "markdown/expression_matches.h"
#include "markdown/match_sink.h"
#include "platform/letters.h"

namespace QZCore {
namespace {

/// How deep the indentation of an item line puts it.
std::size_t levelOf(StringView indentation, std::size_t blanksPerLevel) {
    if (indentation.starts_with(u'\t')) return indentation.size();
    return indentation.size() / blanksPerLevel;
}

/// Puts items under each other.
class Nesting {
public:
    /// Gives `item`, which gets the number `index`, its place. An item is never
    /// more than one level below the one before it.
    void place(ListLine& item, std::uint32_t index, std::size_t indentation) {
        const std::size_t depth = std::min(indentation, open_.size());
        open_.resize(depth + 1);
        Open& level = open_[depth];
        item.level = static_cast<std::uint32_t>(depth) + 1;
        item.parent = depth == 0 ? kNoListLine : open_[depth - 1].last;
        item.position = ++level.items;
        level.last = index;
    }

private:
    /// A level on the way from the root to the last item.
    struct Open {
        std::uint32_t last = 0;
        std::uint32_t items = 0;
    };

    std::vector<Open> open_;
};

bool isBullet(char16_t marker) { return marker == u'*' || marker == u'+' || marker == u'-'; }

/// The start of the line behind the line end at `at`, if there is one.
std::size_t behindLineEnd(StringView text, std::size_t at) {
    if (at == text.size() || !endsLine(text[at])) return at;
    return text.substr(at, 2) == u"\r\n" ? at + 2 : at + 1;
}

}  // namespace

void joinWrappedLines(String& list) {
    if (list.empty()) return;
    std::size_t at = 0;
    while ((at = findUnit(list, at + 1, u'\n')) + 1 < list.size()) {
        if (isLetter(codePointAt(list, at + 1).value)) list[at] = u' ';
    }
}

ListLineReader::ListLineReader(const MarkdownExpression& listLine, const Preferences& preferences)
    : listLine_(listLine),
      blanksPerLevel_(static_cast<std::size_t>(std::max<std::int64_t>(
          1, preferences.integerForKey(u"Import List Spaces Per Indent", 4)))) {}

const std::vector<ListLine>& ListLineReader::linesOf(StringView list) {
    items_.clear();
    findMatches(listLine_, list, items_);
    lines_.clear();
    std::size_t at = 0;
    Nesting nesting;
    for (const SpanMatch& item : items_) {
        addOtherLines(list, at, item.whole.start);
        const auto [blanks, marker, text] = item.groups;
        ListLine line{.isNumbered = !isBullet(list[marker.start]), .text = text};
        const StringView indentation = list.substr(blanks.start, blanks.end - blanks.start);
        nesting.place(line, static_cast<std::uint32_t>(lines_.size()),
                      levelOf(indentation, blanksPerLevel_));
        lines_.push_back(line);
        at = item.whole.end;
    }
    addOtherLines(list, at, list.size());
    return lines_;
}

/// Adds the lines from the end of a line, or from the start of the list, on.
void ListLineReader::addOtherLines(StringView list, std::size_t from, std::size_t to) {
    if (from > 0) from = behindLineEnd(list, from);
    while (from < to) {
        const std::size_t lineEnd = findLineEnd(list, from);
        lines_.push_back({.text = spanOf(from, lineEnd)});
        from = behindLineEnd(list, lineEnd);
    }
}

}  // namespace QZCore
