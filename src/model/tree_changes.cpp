// Inserting, removing and moving children. Nodes that are removed are let go
// last, when the tree is in order: what they own may look at it.

#include <algorithm>
#include <iterator>
#include <utility>

#include "QZCore/model/tree_node.h"
#include "codecs/safe_insertion.h"
#include "model/identity_table.h"

namespace QZCore {
namespace {

bool isNode(const std::shared_ptr<QZTreeNode>& child) { return child != nullptr; }

QZTreeNodes::iterator childAt(QZTreeNodes& children, std::size_t index) {
    return children.begin() + static_cast<std::ptrdiff_t>(index);
}

}  // namespace

// ---- Inserting ----

void QZTreeNode::addChild(std::shared_ptr<QZTreeNode> child) {
    insertChild(std::move(child), numberOfChildren());
}

void QZTreeNode::addChildren(QZTreeNodes children) {
    insertChildren(std::move(children), numberOfChildren());
}

void QZTreeNode::insertChild(std::shared_ptr<QZTreeNode> child, std::size_t atIndex) {
    if (child != nullptr) child->parent_ = weak_from_this();
    if (!hasList()) return;
    if (!canInsertObject(isNode(child), atIndex, numberOfChildren(), __builtin_return_address(0)))
        return;
    QZTreeNodes& list = changeableChildren();
    list.insert(childAt(list, atIndex), std::move(child));
}

void QZTreeNode::insertChildren(QZTreeNodes children, std::size_t atIndex) {
    bool isComplete = true;
    for (const auto& child : children) {
        if (child == nullptr) {
            isComplete = false;
        } else {
            child->parent_ = weak_from_this();
        }
    }
    if (!hasList()) return;
    QZTreeNodes& list = changeableChildren();
    if (isComplete && atIndex <= list.size()) {
        list.insert(childAt(list, atIndex), std::make_move_iterator(children.begin()),
                    std::make_move_iterator(children.end()));
    } else {
        insertOneByOne(list, std::move(children), atIndex, isNode, __builtin_return_address(0));
    }
}

// ---- Removing ----

void QZTreeNode::removeChild(const std::shared_ptr<QZTreeNode>& child) {
    const auto found = childAtIndex(indexOfChild(child));
    if (found != nullptr) removeChildrenIdenticalTo({found});
}

void QZTreeNode::removeChildrenIdenticalTo(const QZTreeNodes& nodes) {
    const IdentityTable table(nodes);
    for (const auto& node : nodes) {
        if (node != nullptr) node->parent_.reset();
    }
    if (!hasChildren()) return;
    QZTreeNodes& list = changeableChildren();
    const auto stays = [&table](const auto& child) { return !table.contains(child.get()); };
    const auto firstRemoved = std::stable_partition(list.begin(), list.end(), stays);
    const QZTreeNodes removed(std::make_move_iterator(firstRemoved),
                              std::make_move_iterator(list.end()));
    list.erase(firstRemoved, list.end());
}

void QZTreeNode::removeAllChildren() {
    if (!hasChildren()) return;
    const QZTreeNodes removed = std::exchange(changeableChildren(), {});
    for (const auto& child : removed) child->parent_.reset();
}

void QZTreeNode::removeFromParent() {
    if (const auto parent = parent_.lock()) parent->removeChild(shared());
}

// ---- Moving ----

void QZTreeNode::moveChild(const std::shared_ptr<QZTreeNode>& child, std::size_t toIndex) {
    moveChildren({child}, toIndex);
}

void QZTreeNode::moveChildren(QZTreeNodes children, std::size_t toIndex) {
    const auto anchor = childAtIndex(toIndex);
    removeChildrenIdenticalTo(children);
    if (anchor == nullptr) return addChildren(std::move(children));
    // Not found when the anchor was moved itself; then nothing is inserted, and
    // callers rely on that.
    const std::size_t index = indexOfChildIdenticalTo(anchor);
    if (index != kNotFound) insertChildren(std::move(children), index);
}

}  // namespace QZCore
