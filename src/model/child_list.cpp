// The list of children: taking it up whole, changing it, finding nodes in it.

#include <algorithm>
#include <utility>

#include "QZCore/model/tree_node.h"
#include "model/identity_table.h"

namespace QZCore {

/// Where the nodes of a list are, each by its first place.
class QZTreeNode::ChildIndex {
public:
    explicit ChildIndex(const QZTreeNodes& nodes) {
        std::uint32_t place = 0;
        for (const auto& node : nodes) places_.add(node.get(), place++);
    }

    [[nodiscard]] std::size_t indexOf(const QZTreeNode* node) const {
        const std::uint32_t place = places_.find(node);
        return place == IdentityTable::kNone ? kNotFound : place;
    }

private:
    IdentityTable places_;
};

QZTreeNode::ChildList::ChildList() = default;
QZTreeNode::ChildList::~ChildList() = default;

/// Goes through the list, until that has been as much work as an index is: so
/// looking up each of many children takes linear time, and a list that changes
/// between two searches costs no more than going through it.
std::size_t QZTreeNode::ChildList::indexOf(const QZTreeNode* node) {
    constexpr std::size_t kShort = 64;
    constexpr std::size_t kWorthOfAnIndex = 16;  // in looks at each node
    if (index != nullptr) return index->indexOf(node);
    const auto found = std::ranges::find(nodes, node, &QZTreeNodes::value_type::get);
    const auto place = static_cast<std::size_t>(found - nodes.begin());
    lookedAt += place;
    if (nodes.size() > kShort && lookedAt / kWorthOfAnIndex > nodes.size()) {
        index = std::make_unique<ChildIndex>(nodes);
    }
    return found == nodes.end() ? kNotFound : place;
}

const QZTreeNodes& QZTreeNode::noChildren() {
    static const QZTreeNodes& none = *new QZTreeNodes;
    return none;
}

/// Takes `nodes` as the list. The one before goes when the new one is in place.
void QZTreeNode::replaceList(QZTreeNodes nodes) {
    std::erase(nodes, nullptr);
    std::unique_ptr<ChildList> list;
    if (!nodes.empty()) {
        list = std::make_unique<ChildList>();
        list->nodes = std::move(nodes);
    }
    list_.swap(list);
}

/// The list, for a change.
QZTreeNodes& QZTreeNode::changeableChildren() {
    if (list_ == nullptr) list_ = std::make_unique<ChildList>();
    list_->index = nullptr;
    list_->lookedAt = 0;
    return list_->nodes;
}

void QZTreeNode::setChildren(const QZTreeNodes& nodes) {
    if (&nodes != &children() || !hasList()) replaceList(nodes);
    for (const auto& child : children()) child->parent_ = weak_from_this();
}

}  // namespace QZCore
