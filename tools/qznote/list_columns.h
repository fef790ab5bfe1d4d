// Where lists stand in lines of characters that are all as wide.
#pragma once

#include <cstddef>
#include <vector>

#include "QZCore/richtext/blocks.h"

namespace qznote {

/// The columns of a block.
struct ListColumns {
    /// Where the marker of an item ends. Those of a list end at the same place.
    std::size_t markerEnd = 0;
    /// Where the text starts; 0 outside of lists.
    std::size_t text = 0;
};

/// The columns of each block: a list is indented by two columns, and a list in
/// an item stands below the item's text.
[[nodiscard]] std::vector<ListColumns> columnsOfLists(const std::vector<QZCore::Block>& blocks);

}  // namespace qznote
