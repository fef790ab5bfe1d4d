// The elements of a page that hold blocks: lists, their items, and quotations.
#pragma once

#include <vector>

#include "QZCore/richtext/blocks.h"
#include "QZCore/richtext/html.h"

namespace QZCore {

/// Ends and starts containers as blocks follow each other, nested properly.
class HtmlContainers {
public:
    /// Tags are appended to `page`, which must outlive this.
    HtmlContainers(String& page, HtmlForm form) : page_(page), form_(form) {}

    /// Makes the containers of `block` the open ones. Of an item that is several
    /// levels below the one before it, only one level is seen.
    void enter(const Block& block);

    /// Ends all that is open.
    void leaveAll();

private:
    void enterItem(const TextListItem& item);
    void startList(const TextListItem& item);
    void startItem(const TextListItem& item);
    void leaveList();
    void enterQuotation();
    void leaveQuotation();

    String& page_;
    HtmlForm form_;
    // The last item of each open list, outermost first. Each holds the next list.
    std::vector<TextListItem> lists_;
    bool inQuotation_ = false;
};

}  // namespace QZCore
