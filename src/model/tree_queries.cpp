// Children, siblings, ancestors and levels.

#include <algorithm>

#include "QZCore/model/tree_node.h"
#include "model/ancestors.h"
#include "model/identity_table.h"
#include "model/tree_walk.h"

namespace QZCore {
// ---- Children and siblings ----

std::size_t QZTreeNode::indexOfChild(const std::shared_ptr<QZTreeNode>& child) const {
    if (child == nullptr) return kNotFound;
    const auto isEqual = [&child](const auto& own) {
        return own == child || own->isEqualTo(*child);
    };
    const auto found = std::ranges::find_if(children(), isEqual);
    return found == children().end() ? kNotFound
                                     : static_cast<std::size_t>(found - children().begin());
}

std::size_t QZTreeNode::indexOfChildIdenticalTo(const std::shared_ptr<QZTreeNode>& child) const {
    return list_ == nullptr ? kNotFound : list_->indexOf(child.get());
}

std::shared_ptr<QZTreeNode> QZTreeNode::childAtIndex(std::size_t index) const {
    return index < numberOfChildren() ? children()[index] : nullptr;
}

std::shared_ptr<QZTreeNode> QZTreeNode::lastChild() const {
    return hasChildren() ? children().back() : nullptr;
}

std::shared_ptr<QZTreeNode> QZTreeNode::nextSibling() const {
    const auto parent = parent_.lock();
    if (parent == nullptr) return nullptr;
    const std::size_t index = parent->indexOfChildIdenticalTo(shared());
    return index == kNotFound ? nullptr : parent->childAtIndex(index + 1);
}

std::shared_ptr<QZTreeNode> QZTreeNode::previousSibling() const {
    const auto parent = parent_.lock();
    if (parent == nullptr) return nullptr;
    const std::size_t index = parent->indexOfChildIdenticalTo(shared());
    return index == kNotFound || index == 0 ? nullptr : parent->childAtIndex(index - 1);
}

// ---- Ancestors ----

std::shared_ptr<QZTreeNode> QZTreeNode::rootNode() const {
    const QZTreeNode* root = this;
    Ancestors ancestors(*this);
    while (const QZTreeNode* ancestor = ancestors.next()) root = ancestor;
    return root->shared();
}

std::size_t QZTreeNode::level() const {
    std::size_t level = 0;
    Ancestors ancestors(*this);
    while (ancestors.next() != nullptr) ++level;
    return level;
}

bool QZTreeNode::isDescendantOfNode(const std::shared_ptr<QZTreeNode>& node) const {
    Ancestors ancestors(*this);
    while (const QZTreeNode* ancestor = ancestors.next()) {
        if (ancestor == node.get()) return true;
    }
    return false;
}

bool QZTreeNode::isDescendantOfNodeInArray(const QZTreeNodes& nodes) const {
    const IdentityTable table(nodes);
    Ancestors ancestors(*this);
    while (const QZTreeNode* ancestor = ancestors.next()) {
        if (table.contains(ancestor)) return true;
    }
    return false;
}

// ---- Levels ----

std::size_t QZTreeNode::maxLevel() const { return maxLevelUnderNode(*this, 0); }

std::size_t QZTreeNode::maxLevelUnderNode(const QZTreeNode& node, std::size_t withCurrentLevel) {
    std::size_t deepest = 0;
    TreeWalk walk(node);
    while (walk.next() != nullptr) deepest = std::max(deepest, walk.depth());
    return withCurrentLevel + deepest;
}

std::size_t QZTreeNode::numberOfAllChildrenRecursively() const {
    std::size_t count = 0;
    TreeWalk walk(*this);
    walk.next();
    while (walk.next() != nullptr) ++count;
    return count;
}

// ---- Pruning ----

void QZTreeNode::pruneToLevel(std::size_t level) { pruneChildrenOfNode(shared(), level); }

void QZTreeNode::pruneChildrenOfNode(const std::shared_ptr<QZTreeNode>& node, std::size_t toLevel) {
    if (node == nullptr) return;
    std::vector<std::size_t> levels;  // of the nodes on the way down
    TreeWalk walk(*node);
    while (const QZTreeNode* next = walk.next()) {
        // Where a node is in a list without being told, its level is another.
        const bool isLinked = walk.depth() > 0 && next->parent().get() == walk.from();
        levels.resize(walk.depth());
        levels.push_back(isLinked ? levels.back() + 1 : next->level());
        if (levels.back() == toLevel) next->shared()->removeAllChildren();
    }
}

}  // namespace QZCore
