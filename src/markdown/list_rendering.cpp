#include "markdown/list_rendering.h"

#include <algorithm>

#include "foundation/unit_search.h"
#include "markdown/list_outline.h"
#include "markdown/list_title.h"
#include "markdown/list_writer.h"

namespace QZCore {
namespace {

constexpr StringView kBlankLine = u"\n\n";

/// What all runs from `start` to `end` have in common.
TextAttributes commonAttributes(std::span<const FlatRun> runs, std::uint32_t start,
                                std::uint32_t end, const AttributePalette& palette) {
    std::vector<bool> seen(palette.size());
    TextAttributes common;
    bool isFirst = true;
    RunWalk walk(runs);
    walk.visit(start, end, [&](std::uint32_t, std::uint32_t id) {
        id &= ~kIgnoreMark;
        if (seen[id]) return;
        seen[id] = true;
        common = isFirst ? palette.at(id) : common.intersectedWith(palette.at(id));
        isFirst = false;
    });
    return common;
}

bool indentsFirstLevel(const Preferences& preferences, bool hasTitle) {
    if (preferences.boolForKey(u"Markdown Inline Lists Indent First Level")) return true;
    return hasTitle &&
           preferences.boolForKey(u"Markdown Inline Lists Only If Titled Indent First Level", true);
}

StringView formatOf(const ListLine& line) { return line.isNumbered ? kDecimalFormat : kDiscFormat; }

/// The number of items under each line, and last of those under none.
std::vector<std::uint32_t> numbersOfChildren(const std::vector<ListLine>& lines) {
    std::vector<std::uint32_t> numbers(lines.size() + 1);
    for (const ListLine& line : lines) {
        if (line.isItem()) ++numbers[std::min<std::size_t>(line.parent, lines.size())];
    }
    return numbers;
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

void writeList(const FlatSlice& markdown, std::span<const FlatRun> runs, bool hasTitle,
               const ListSettings& settings, AttributePalette& palette, FlatWriter& out) {
    const StringView units = markdown.units;
    const TextAttributes prefix = commonAttributes(
        runs, markdown.start, markdown.start + static_cast<std::uint32_t>(units.size()), palette);
    const bool endsBlank = units.ends_with(kBlankLine);
    String list(units);
    joinWrappedLines(list);
    if (endsBlank) list.resize(list.size() - kBlankLine.size());
    const std::vector<ListLine> lines = listLines(list, settings.listLine, settings.preferences);
    const std::vector<std::uint32_t> children = numbersOfChildren(lines);
    std::vector<std::uint32_t> listsBelow(lines.size());

    ListWriter writer(ListLook(settings.styles, settings.preferences, prefix,
                               indentsFirstLevel(settings.preferences, hasTitle)),
                      prefix, {}, out, palette);
    RunWalk walk(runs);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const ListLine& line = lines[i];
        const FlatSlice text{
            StringView(list).substr(line.text.start, line.text.end - line.text.start),
            markdown.start + line.text.start};
        if (!line.isItem()) {
            writer.writeOther(text, walk);
            continue;
        }
        const bool isOutermost = line.parent == kNoListLine;
        const std::uint32_t lists = isOutermost ? ListWriter::kOutermost : listsBelow[line.parent];
        // Only sub-items ask for it, and only they make lists differ.
        if (children[i] > 0) listsBelow[i] = writer.pushed(lists, formatOf(line));
        const std::uint32_t siblings = children[isOutermost ? lines.size() : line.parent];
        writer.writeItem({formatOf(line), line.level, line.position, siblings}, lists, text, walk);
    }
    if (endsBlank) writer.writePlain(kBlankLine);
}

void renderLists(RenderText& text, bool startsNote, const ListSettings& settings) {
    const Titles titles(startsNote ? text.live() : StringView());
    text.rewrite([&](const SpanMatch& match, FlatText& flat, FlatWriter& out) {
        const std::uint32_t start = match.whole.start;
        const StringView live = flat.text;
        writeList({live.substr(start, match.whole.end - start), start}, flat.runs,
                  titles.hasTitle(live, start), settings, flat.palette, out);
    });
}

}  // namespace QZCore
