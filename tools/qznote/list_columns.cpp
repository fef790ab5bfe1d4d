#include "list_columns.h"

#include <algorithm>

namespace qznote {

using namespace QZCore;

namespace {

/// Items that stand side by side.
struct Siblings {
    std::size_t around = 0;  // the list that the item around them belongs to
    std::size_t depth = 0;
    std::size_t widestMarker = 0;
    std::size_t column = 0;  // where their texts start
};

/// Sorts items into lists. The list 0 is none.
class Lists {
public:
    /// The list of the block, as a number.
    std::size_t listOf(const Block& block) {
        if (!block.isInList) current_ = 0;
        if (block.kind == BlockKind::Item) enter(block.item);
        return current_;
    }

    [[nodiscard]] std::vector<Siblings> withColumns() {
        constexpr std::size_t kIndent = 2;
        lists_.front().column = kIndent;
        // The list around another one comes before it.
        for (std::size_t i = 1; i < lists_.size(); ++i) {
            lists_[i].column = lists_[lists_[i].around].column + lists_[i].widestMarker + 1;
        }
        lists_.front().column = 0;
        return std::move(lists_);
    }

private:
    void enter(const TextListItem& item) {
        while (lists_[current_].depth > item.depth) current_ = lists_[current_].around;
        if (lists_[current_].depth < item.depth) {
            lists_.push_back({.around = current_, .depth = item.depth});
            current_ = lists_.size() - 1;
        }
        std::size_t& widest = lists_[current_].widestMarker;
        widest = std::max(widest, item.marker().size());
    }

    std::vector<Siblings> lists_ = std::vector<Siblings>(1);
    std::size_t current_ = 0;
};

}  // namespace

std::vector<ListColumns> columnsOfLists(const std::vector<Block>& blocks) {
    Lists sorting;
    std::vector<std::size_t> listOf;
    listOf.reserve(blocks.size());
    for (const Block& block : blocks) listOf.push_back(sorting.listOf(block));
    const std::vector<Siblings> lists = sorting.withColumns();
    std::vector<ListColumns> columns;
    columns.reserve(blocks.size());
    for (const std::size_t list : listOf) {
        const std::size_t text = lists[list].column;
        columns.push_back({.markerEnd = text == 0 ? 0 : text - 1, .text = text});
    }
    return columns;
}

}  // namespace qznote
