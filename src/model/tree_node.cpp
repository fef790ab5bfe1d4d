#include "QZCore/model/tree_node.h"

#include <algorithm>
#include <utility>

#include "model/release_value.h"

namespace QZCore {

std::shared_ptr<QZTreeNode> QZTreeNode::treeNodeWithData(Value data) {
    auto node = std::make_shared<QZTreeNode>(Making());
    node->data_ = std::move(data);
    return node;
}

std::shared_ptr<QZTreeNode> QZTreeNode::initWithData(Value data,
                                                     const std::shared_ptr<QZTreeNode>& parent,
                                                     const std::optional<QZTreeNodes>& children) {
    auto node = treeNodeWithData(std::move(data));
    node->parent_ = parent;
    if (children) {
        node->children_ = *children;
        std::erase(node->children_, nullptr);
    }
    return node;
}

QZTreeNode::~QZTreeNode() {
    releaseValue(data_);
    if (hasChildren()) Release<QZTreeNodes>::later(std::move(children_));
}

std::shared_ptr<QZTreeNode> QZTreeNode::newNode() const { return treeNodeWithData({}); }

/// The node as its owners have it; empty when it has none.
std::shared_ptr<QZTreeNode> QZTreeNode::shared() const {
    return std::const_pointer_cast<QZTreeNode>(weak_from_this().lock());
}

void QZTreeNode::setChildren(const QZTreeNodes& children) {
    QZTreeNodes before;
    if (&children != &children_) {
        before = std::exchange(children_, children);
        std::erase(children_, nullptr);
        hasChildrenList_ = true;
    }
    for (const auto& child : children_) child->parent_ = weak_from_this();
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
