#include "markdown/note_parts.h"

#include <algorithm>
#include <utility>

#include "markdown/code_fences.h"
#include "markdown/escape_scanner.h"
#include "markdown/match_sink.h"
#include "markdown/row_scanners.h"
#include "markdown/syntax_rows.h"
#include "platform/letters.h"

namespace QZCore {
namespace {

/// Looks for the last character of a set, at places that lie ever further back.
class LastOf {
public:
    LastOf(StringView text, StringView set) : text_(text), set_(set), last_(text.size()) {}

    /// The position of the last one before `end`, or `npos`.
    std::size_t before(std::size_t end) {
        if (last_ != StringView::npos && last_ >= end)
            last_ = text_.substr(0, end).find_last_of(set_);
        return last_;
    }

private:
    StringView text_;
    StringView set_;
    std::size_t last_;
};

/// Whether a line that ends with `unit` still does after all passes, and is no
/// list marker with a blank behind it.
bool staysAtLineEnd(char16_t unit) {
    return !isWhitespaceOrNewline(unit) && StringView(u"`)*_~=^:").find(unit) == StringView::npos;
}

/// The fenced blocks of a text.
class CodeBlocks {
public:
    explicit CodeBlocks(StringView text) {
        MatchSink sink(blocks_, SIZE_MAX);
        scanCodeBlocks(text, sink);
        openFence_ = findOpeningFence(text, blocks_.empty() ? 0 : blocks_.back().whole.end);
    }

    /// The start of the block that holds `position`, ends there or may be open
    /// there; `position` when there is none.
    [[nodiscard]] std::size_t startOfBlockAt(std::size_t position) const {
        if (openFence_ < position) return openFence_;
        const auto next = std::ranges::lower_bound(
            blocks_, position, {}, [](const SpanMatch& block) { return block.whole.start; });
        if (next == blocks_.begin() || std::prev(next)->whole.end < position) return position;
        return std::prev(next)->whole.start;
    }

private:
    std::vector<SpanMatch> blocks_;
    std::size_t openFence_ = 0;
};

/// Removes what lies behind `end`.
void cutAt(std::size_t end, FlatText& text) {
    text.text.resize(end);
    const auto last = std::ranges::lower_bound(text.runs, end, {}, &FlatRun::end);
    last->end = static_cast<std::uint32_t>(end);
    text.runs.erase(last + 1, text.runs.end());
}

/// The part that starts at `start`, `length` units long or shorter; longer where
/// it cannot be cut.
FlatText partFrom(const NoteSource& note, std::size_t start, std::size_t length,
                  AttributePalette& palette) {
    constexpr std::size_t kGrowth = 8;
    for (;; length *= kGrowth) {
        FlatText part = note.part({start, length}, std::move(palette));
        palette = std::move(part.palette);
        if (start + part.text.size() == note.length()) return part;
        const std::size_t cut = lastCut(part.text);
        if (cut == 0) continue;
        cutAt(cut, part);
        return part;
    }
}

bool hasOwnLinkPattern(const MarkdownSyntax& syntax) {
    const MarkdownExpression* link = syntax.expressionForKey(kMarkdownLink);
    return link != nullptr && link->pattern() != kDefaultLinkPattern;
}

}  // namespace

std::size_t lastCut(StringView text) {
    String copy;
    text = coverEscapes(text, copy);
    const CodeBlocks code(text);
    LastOf bracket(text, u"[]");
    LastOf targetEnd(text, u"( )");
    std::size_t end = text.size();
    for (;;) {
        const std::size_t blankLine = text.substr(0, end).rfind(u"\n\n");
        if (blankLine == StringView::npos || blankLine == 0) return 0;
        const std::size_t cut = blankLine + 2;
        end = blankLine + 1;
        if (cut == text.size() || !staysAtLineEnd(text[blankLine - 1]) || !isLetter(text[cut])) {
            continue;
        }
        std::size_t open = code.startOfBlockAt(cut);
        if (const std::size_t last = bracket.before(cut);
            last != StringView::npos && text[last] == u'[') {
            open = std::min(open, last);
        }
        if (const std::size_t last = targetEnd.before(cut);
            last != StringView::npos && text[last] == u'(') {
            open = std::min(open, last);
        }
        if (open == cut) return cut;
        end = std::min(end, open);
    }
}

std::vector<FlatText> notePartsOf(const NoteSource& note, const MarkdownSyntax& syntax,
                                  AttributePalette& palette, std::size_t partLength) {
    const std::size_t length = hasOwnLinkPattern(syntax) ? note.length() : partLength;
    std::vector<FlatText> parts;
    for (std::size_t start = 0; start < note.length(); start += parts.back().text.size()) {
        parts.push_back(partFrom(note, start, length, palette));
    }
    return parts;
}

}  // namespace QZCore
