#include "loose_lists.h"

#include <cstddef>
#include <cstdint>
#include <optional>

#include "note_lines.h"

namespace qznote {
namespace {

using namespace QZCore;

/// The start of an item.
struct ItemStart {
    std::size_t indentation = 0;
    std::size_t text = 0;      // where the text of the item starts
    std::uint64_t number = 0;  // 0 for a bullet
};

std::optional<ItemStart> itemStartOf(StringView line) {
    constexpr std::size_t kMostDigits = 9;
    ItemStart item{.indentation = indentationOf(line)};
    const StringView marker = line.substr(item.indentation);
    std::size_t length = marker.find_first_not_of(u"0123456789");
    if (length == 0 && StringView(u"*+-").find(marker.front()) == StringView::npos) return {};
    if (length == StringView::npos || length > kMostDigits) return {};
    if (length > 0 && marker[length] != u'.') return {};
    if (length > 0)
        item.number = static_cast<std::uint64_t>(integerValue(marker.substr(0, length)));
    ++length;
    if (length >= marker.size() || (marker[length] != u' ' && marker[length] != u'\t')) return {};
    item.text = item.indentation + length + 1;
    return item;
}

/// Knows the list that the lines of a note are in.
class LooseList {
public:
    [[nodiscard]] bool isOpen() const { return item_.has_value(); }

    /// Whether `line`, which stands below an empty one, goes on with the list.
    [[nodiscard]] bool goesOn(StringView line) const {
        if (!item_) return false;
        const std::size_t indentation = indentationOf(line);
        if (indentation >= item_->text || line.starts_with(u'\t')) return true;
        const auto next = itemStartOf(line);
        if (!next || next->indentation != item_->indentation || next->number == 0) return false;
        return next->number == item_->number || next->number == item_->number + 1;
    }

    /// Goes on to `line`. The items that count are the outermost ones.
    void enter(StringView line) {
        const auto next = itemStartOf(line);
        if (next && (!item_ || next->indentation < item_->text)) item_ = next;
    }

    /// The list ends.
    void leave() { item_.reset(); }

private:
    std::optional<ItemStart> item_;
};

}  // namespace

String withTightLists(StringView note) {
    String tight;
    tight.reserve(note.size());
    CodeLines code;
    LooseList list;
    String gap;  // the empty lines above
    while (!note.empty()) {
        const StringView line = takeLine(note);
        if (code.isCode(line)) {
            tight += list.isOpen() && line == u"\n" ? u" \n" : line;
        } else if (isEmptyLine(line)) {
            gap += line;
        } else {
            if (!gap.empty() && !list.goesOn(line)) {
                tight += gap;
                list.leave();
            }
            gap.clear();
            list.enter(line);
            tight += line;
        }
    }
    return tight += gap;
}

}  // namespace qznote
