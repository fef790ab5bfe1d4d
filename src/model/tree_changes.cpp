// Inserting, removing and moving children. Nodes that are removed are let go
// last, when the tree is in order: what they own may look at it.

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

#include "QZCore/model/tree_node.h"
#include "codecs/misuse_log.h"
#include "model/identity_table.h"

namespace QZCore {
namespace {

/// Whether `child` can be inserted into a list of `count`. Logs when it cannot.
bool canInsert(const std::shared_ptr<QZTreeNode>& child, std::size_t index, std::size_t count,
               const void* returnAddress) {
    if (child == nullptr) {
        logMisuse(u"Attempting to call insertObject:atIndex with a nil object", returnAddress);
        return false;
    }
    if (index <= count) return true;
    logMisuse(u"Attempting to call insertObject:atIndex:" + unsignedString(index) +
                  u" with count:" + unsignedString(count),
              returnAddress);
    return false;
}

QZTreeNodes::iterator childAt(QZTreeNodes& children, std::size_t index) {
    return children.begin() + static_cast<std::ptrdiff_t>(index);
}

/// What inserting the nodes one by one at `index` and the indexes that follow
/// makes of the list.
void insertOneByOne(QZTreeNodes& list, QZTreeNodes nodes, std::size_t index,
                    const void* returnAddress) {
    QZTreeNodes inserted;
    inserted.reserve(list.size() + nodes.size());
    auto rest = list.begin();  // what lies before an index stays there, for indexes only grow
    for (auto& node : nodes) {
        while (inserted.size() < index && rest != list.end()) {
            inserted.push_back(std::move(*rest++));
        }
        const std::size_t count = inserted.size() + static_cast<std::size_t>(list.end() - rest);
        if (canInsert(node, index, count, returnAddress)) inserted.push_back(std::move(node));
        if (index < SIZE_MAX) ++index;
    }
    std::move(rest, list.end(), std::back_inserter(inserted));
    list = std::move(inserted);
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
    if (!canInsert(child, atIndex, numberOfChildren(), __builtin_return_address(0))) return;
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
        insertOneByOne(list, std::move(children), atIndex, __builtin_return_address(0));
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
    QZTreeNodes& list = list_->nodes;
    const auto stays = [&table](const auto& child) { return !table.contains(child.get()); };
    const auto firstRemoved = std::stable_partition(list.begin(), list.end(), stays);
    const QZTreeNodes removed(std::make_move_iterator(firstRemoved),
                              std::make_move_iterator(list.end()));
    list.erase(firstRemoved, list.end());
}

void QZTreeNode::removeAllChildren() {
    if (!hasChildren()) return;
    const QZTreeNodes removed = std::exchange(list_->nodes, {});
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
