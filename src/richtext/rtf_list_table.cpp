#include "richtext/rtf_list_table.h"

#include <algorithm>

namespace QZCore {
namespace {

constexpr std::int64_t kLargestNumber = 999'999'999;

/// A marker: its length, and its units or the place of the number.
void writeMarker(RtfNumbering numbering, char16_t bullet, std::size_t level, RtfOutput& out) {
    out.openGroup();
    out.word("leveltext");
    if (numbering == RtfNumbering::Bullet) {
        out.byte(1);
        out.text({&bullet, 1});
        out.mark(";}{\\levelnumbers;}");
        return;
    }
    out.byte(2);
    out.byte(static_cast<std::uint8_t>(level));
    out.mark(".;}{\\levelnumbers");
    out.byte(1);
    out.mark(";}");
}

/// The number of an item whose marker is one.
std::optional<std::int64_t> numberOf(const RtfListItem& item) {
    if (item.ownFormat != kDecimalFormat) return std::nullopt;
    return std::clamp<std::int64_t>(integerValue(item.marker), 0, kLargestNumber);
}

}  // namespace

std::size_t RtfListTable::listOf(const RtfListItem& item, double textIndent) {
    open_.resize(std::min(open_.size(), item.level + 1));
    if (open_.empty() || !fits(lists_[open_.back()], item)) {
        List fresh = listFor(item);
        open_.resize(std::min(open_.size(), item.level));
        open_.push_back(lists_.size());
        lists_.push_back(std::move(fresh));
    }
    const std::size_t number = open_.back();
    open_.resize(item.level + 1, number);
    List& list = lists_[number];
    list.resize(std::max(list.size(), item.level + 1));
    Level& level = list[item.level];
    if (level.format.empty()) {
        level.format = item.ownFormat;
        level.start = level.next = numberOf(item).value_or(1);
        if (item.marker.size() == 1) level.bullet = item.marker[0];
        level.textIndent = textIndent;
        level.markerStop = item.markerStop;
        level.isMarkerSetRight = item.isMarkerSetRight;
    }
    ++level.next;
    for (std::size_t within = item.level + 1; within < list.size(); ++within) {
        list[within].next = list[within].start;
    }
    return number + 1;
}

/// Whether the levels that `list` has so far are those of `item`, and its number
/// is the one that comes next.
bool RtfListTable::fits(const List& list, const RtfListItem& item) const {
    const auto agrees = [&](std::size_t level, const String& format) {
        return level >= list.size() || list[level].format.empty() || list[level].format == format;
    };
    for (std::size_t level = 0; level < item.formats.size(); ++level) {
        if (!agrees(level, item.formats[level])) return false;
    }
    const bool isNew = item.level >= list.size() || list[item.level].format.empty();
    const auto number = numberOf(item);
    if (!isNew && number && *number != list[item.level].next) return false;
    return agrees(item.level, item.ownFormat);
}

/// A list whose levels above that of `item` are known.
RtfListTable::List RtfListTable::listFor(const RtfListItem& item) const {
    List list;
    if (!open_.empty()) list = lists_[open_.back()];
    list.resize(std::min(list.size(), item.level));
    for (std::size_t level = 0; level < item.level && level < item.formats.size(); ++level) {
        list.resize(std::max(list.size(), level + 1));
        list[level].format = item.formats[level];
    }
    return list;
}

void RtfListTable::write(RtfOutput& out) const {
    if (lists_.empty()) return;
    out.openIgnorableGroup("listtable");
    for (std::size_t list = 0; list < lists_.size(); ++list) {
        const auto id = static_cast<std::int64_t>(list + 1);
        out.openGroup();
        out.word("list");
        out.word("listtemplateid", id);
        for (std::size_t level = 0; level < lists_[list].size(); ++level) {
            writeLevel(lists_[list][level], level, out);
        }
        out.mark("{\\listname ;}");
        out.word("listid", id);
        out.mark("}\n");
    }
    out.closeGroup();
    out.openIgnorableGroup("listoverridetable");
    for (std::size_t list = 1; list <= lists_.size(); ++list) {
        out.openGroup();
        out.word("listoverride");
        out.word("listid", static_cast<std::int64_t>(list));
        out.word("listoverridecount", 0);
        out.word("ls", static_cast<std::int64_t>(list));
        out.closeGroup();
    }
    out.mark("}\n");
}

void RtfListTable::writeLevel(const Level& level, std::size_t number, RtfOutput& out) {
    const RtfNumbering numbering = rtfNumberingOf(level.format);
    out.openGroup();
    out.word("listlevel");
    for (const std::string_view name : {"levelnfc", "levelnfcn"}) {
        out.word(name, static_cast<std::int64_t>(numbering));
    }
    constexpr std::int64_t kRight = 2;
    for (const std::string_view name : {"leveljc", "leveljcn"}) {
        out.word(name, level.isMarkerSetRight ? kRight : 0);
    }
    out.word("levelfollow", 0);
    out.word("levelstartat", level.start);
    writeMarker(numbering, level.bullet, number, out);
    out.word("fi", twipsOf(level.markerStop) - twipsOf(level.textIndent));
    out.word("li", twipsOf(level.textIndent));
    out.closeGroup();
}

}  // namespace QZCore
