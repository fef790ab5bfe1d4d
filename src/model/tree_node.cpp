#include "QZCore/model/tree_node.h"

#include <utility>

#include "model/release_value.h"

namespace QZCore {

std::shared_ptr<QZTreeNode> QZTreeNode::treeNodeWithData(Value data) {
    return std::make_shared<QZTreeNode>(Making(), std::move(data));
}

std::shared_ptr<QZTreeNode> QZTreeNode::initWithData(Value data,
                                                     const std::shared_ptr<QZTreeNode>& parent,
                                                     const std::optional<QZTreeNodes>& children) {
    auto node = treeNodeWithData(std::move(data));
    node->parent_ = parent;
    if (children) node->replaceList(*children);
    return node;
}

QZTreeNode::~QZTreeNode() {
    releaseValue(data_);
    if (hasChildren()) Release<QZTreeNodes>::later(std::move(list_->nodes));
}

std::shared_ptr<QZTreeNode> QZTreeNode::newNode() const { return treeNodeWithData({}); }

/// The node as its owners have it; empty when it has none.
std::shared_ptr<QZTreeNode> QZTreeNode::shared() const {
    return std::const_pointer_cast<QZTreeNode>(weak_from_this().lock());
}

String QZTreeNode::description() const {
    // A datum may lead to further nodes, and even back to this one.
    constexpr int kDeepest = 100;
    static thread_local int depth = 0;
    if (depth == kDeepest) return u"{...}";
    ++depth;
    String text = u"{" + data_.description() + u"}";
    --depth;
    return text;
}

}  // namespace QZCore
