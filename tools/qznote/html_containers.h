// The elements of a page that hold blocks: lists, their items, and quotations.
#pragma once

#include <string>
#include <vector>

#include "blocks.h"

namespace qznote {

/// Ends and starts containers as blocks follow each other, nested properly.
class HtmlContainers {
public:
    /// Tags are appended to `page`, which must outlive this.
    explicit HtmlContainers(std::string& page) : page_(page) {}

    /// Makes the containers of `block` the open ones. Of an item that is several
    /// levels below the one before it, only one level is seen.
    void enter(const Block& block);

    /// Ends all that is open.
    void leaveAll();

private:
    void enterItem(const ListItem& item);
    void startList(const ListItem& item);
    void startItem(const ListItem& item);
    void leaveList();
    void enterQuotation();
    void leaveQuotation();

    std::string& page_;
    // The last item of each open list, outermost first. Each holds the next list.
    std::vector<ListItem> lists_;
    bool inQuotation_ = false;
};

}  // namespace qznote
