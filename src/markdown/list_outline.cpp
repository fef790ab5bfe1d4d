#include "markdown/list_outline.h"

#include <algorithm>

#include "foundation/unit_search.h"
#include "markdown/expression_matches.h"
#include "markdown/match_sink.h"
#include "platform/letters.h"

namespace QZCore {
namespace {

/// How deep the indentation of an item line puts it.
class Indentation {
public:
    explicit Indentation(const Preferences& preferences)
        : blanksPerLevel_(static_cast<std::size_t>(std::max<std::int64_t>(
              1, preferences.integerForKey(u"Import List Spaces Per Indent", 4)))) {}

    [[nodiscard]] std::size_t levelOf(StringView indentation) const {
        if (indentation.empty()) return 0;
        if (indentation.front() == u'\t') return indentation.size();
        return indentation.size() / blanksPerLevel_;
    }

private:
    std::size_t blanksPerLevel_;
};

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
    for (std::size_t at = 1; at + 1 < list.size(); ++at) {
        if (list[at] == u'\n' && isLetter(codePointAt(list, at + 1).value)) list[at] = u' ';
    }
}

std::vector<ListLine> listLines(StringView list, const MarkdownExpression& listLine,
                                const Preferences& preferences) {
    std::vector<SpanMatch> items;
    findMatches(listLine, list, items);
    std::vector<ListLine> lines;
    lines.reserve(items.size());
    std::size_t at = 0;
    const auto addOtherLinesUpTo = [&](std::size_t end) {
        if (at > 0) at = behindLineEnd(list, at);
        while (at < end) {
            const std::size_t lineEnd = findLineEnd(list, at);
            lines.push_back({.text = spanOf(at, lineEnd)});
            at = behindLineEnd(list, lineEnd);
        }
    };
    const Indentation indentation(preferences);
    Nesting nesting;
    for (const SpanMatch& item : items) {
        addOtherLinesUpTo(item.whole.start);
        const auto [blanks, marker, text] = item.groups;
        ListLine line{.isNumbered = !isBullet(list[marker.start]), .text = text};
        nesting.place(line, static_cast<std::uint32_t>(lines.size()),
                      indentation.levelOf(list.substr(blanks.start, blanks.end - blanks.start)));
        lines.push_back(line);
        at = item.whole.end;
    }
    addOtherLinesUpTo(list.size());
    return lines;
}

}  // namespace QZCore
