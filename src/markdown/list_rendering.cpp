#include "markdown/list_rendering.h"

#include <algorithm>

#include "foundation/unit_search.h"
#include "markdown/list_title.h"

namespace QZCore {
namespace {

constexpr StringView kBlankLine = u"\n\n";

bool indentsFirstLevel(const Preferences& preferences, bool hasTitle) {
    if (preferences.boolForKey(u"Markdown Inline Lists Indent First Level")) return true;
    return hasTitle &&
           preferences.boolForKey(u"Markdown Inline Lists Only If Titled Indent First Level", true);
}

/// Puts the number of items under each line into `numbers`, and last of those
/// under none.
void countChildren(const std::vector<ListLine>& lines, std::vector<std::uint32_t>& numbers) {
    numbers.assign(lines.size() + 1, 0);
    for (const ListLine& line : lines) {
        if (line.isItem()) ++numbers[std::min<std::size_t>(line.parent, lines.size())];
    }
}

/// Tells which list of a note has a title. None has in a part of it that does not
/// start it.
class Titles {
public:
    explicit Titles(StringView note) {
        while (start_ < note.size() && isWhitespaceOrNewline(note[start_])) ++start_;
        const std::size_t first = findUnit(note, start_, u'\n');
        last_ = findUnit(note, std::min(first + 1, note.size()), u'\n') + 1;
    }

    /// Whether the list that starts at `list` has one.
    [[nodiscard]] bool hasTitle(StringView note, std::size_t list) const {
        return list >= start_ && list <= last_ && isListTitle(note.substr(start_, list - start_));
    }

private:
    std::size_t start_ = 0;  // of the first line with text
    std::size_t last_ = 0;   // where a list with a title may start at the latest
};

}  // namespace

/// What all runs of a list have in common.
TextAttributes ListRenderer::commonAttributes(std::span<const FlatRun> runs,
                                              const FlatSlice& list) {
    ++list_;
    TextAttributes common;
    bool isFirst = true;
    const auto end = list.start + static_cast<std::uint32_t>(list.units.size());
    RunWalk(runs, list.start).visit(list.start, end, [&](std::uint32_t, std::uint32_t id) {
        id &= ~kIgnoreMark;
        if (id >= metIn_.size()) metIn_.resize(palette_.size());
        if (std::exchange(metIn_[id], list_) == list_) return;
        common = isFirst ? palette_.at(id) : common.intersectedWith(palette_.at(id));
        isFirst = false;
    });
    return common;
}

ListWriter& ListRenderer::writerFor(const TextAttributes& prefix, bool hasTitle) {
    const bool indents = indentsFirstLevel(settings_.preferences, hasTitle);
    const std::pair key{palette_.idOf(prefix), indents};
    const auto known = writers_.find(key);
    if (known != writers_.end()) return known->second;
    ListLook look(settings_.styles, settings_.preferences, prefix, indents);
    return writers_.try_emplace(key, std::move(look), prefix, TextLists(), palette_).first->second;
}

void ListRenderer::write(const FlatSlice& markdown, std::span<const FlatRun> runs, bool hasTitle,
                         FlatWriter& out) {
    ListWriter& writer = writerFor(commonAttributes(runs, markdown), hasTitle);
    text_ = markdown.units;
    joinWrappedLines(text_);
    StringView list = text_;
    const bool endsBlank = list.ends_with(kBlankLine);
    if (endsBlank) list.remove_suffix(kBlankLine.size());
    const std::vector<ListLine>& lines = reader_.linesOf(list);
    countChildren(lines, children_);
    listsBelow_.resize(lines.size());
    RunWalk walk(runs, markdown.start);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const ListLine& line = lines[i];
        const SpanMatch::Span span = line.text;
        const FlatSlice text{list.substr(span.start, span.end - span.start),
                             markdown.start + span.start};
        if (!line.isItem()) {
            writer.writeOther(text, walk, out);
            continue;
        }
        const bool isOutermost = line.parent == kNoListLine;
        const std::uint32_t lists = isOutermost ? ListWriter::kOutermost : listsBelow_[line.parent];
        // Only sub-items ask for it.
        if (children_[i] > 0) listsBelow_[i] = writer.pushed(lists, line.markerFormat());
        const std::uint32_t siblings = children_[isOutermost ? lines.size() : line.parent];
        writer.writeItem({line.markerFormat(), line.level, line.position, siblings}, lists, text,
                         walk, out);
    }
    if (endsBlank) writer.writePlain(kBlankLine, out);
}

void renderLists(RenderText& text, bool startsNote, ListRenderer& renderer) {
    const Titles titles(startsNote ? text.live() : StringView());
    text.rewrite([&](const SpanMatch& match, const FlatText& flat, FlatWriter& out) {
        const std::uint32_t start = match.whole.start;
        const StringView live = flat.text;
        renderer.write({live.substr(start, match.whole.end - start), start}, flat.runs,
                       titles.hasTitle(live, start), out);
    });
}

}  // namespace QZCore
