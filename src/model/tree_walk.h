// The one way through a tree: depth first, without recursion.
#pragma once

#include <bit>
#include <cstddef>
#include <vector>

#include "QZCore/model/tree_node.h"

namespace QZCore {

/// Walks a node and its descendants, every node before its children and
/// children in order. The children of a node are looked at when the walk goes
/// on from it, so they may be removed until then.
///
///     TreeWalk walk(root);
///     while (const QZTreeNode* node = walk.next()) ...
class TreeWalk {
public:
    explicit TreeWalk(const QZTreeNode& root) : root_(&root) {}

    /// The next node; null at the end.
    const QZTreeNode* next() {
        if (current_ == nullptr) return current_ = root_;
        if (current_->hasChildren() && !enterCurrent()) return nullptr;
        while (!path_.empty()) {
            Step& step = path_.back();
            const QZTreeNodes& children = step.node->children();
            if (step.child < children.size()) return current_ = children[step.child++].get();
            path_.pop_back();
        }
        return nullptr;
    }

    /// The depth of the node that was returned last below the walk's root.
    [[nodiscard]] std::size_t depth() const { return path_.size(); }

    /// The parent of that node in this walk; null for the walk's root.
    [[nodiscard]] const QZTreeNode* from() const {
        return path_.empty() ? nullptr : path_.back().node;
    }

private:
    struct Step {
        const QZTreeNode* node;
        std::size_t child;  // the next one
    };

    /// Whether the walk can go on. It ends in a tree that contains itself. Going
    /// round, it sooner or later meets the node at the last depth that is a
    /// power of two.
    bool enterCurrent() {
        const bool isRound =
            !path_.empty() && path_[std::bit_floor(path_.size()) - 1].node == current_;
        if (isRound) {
            path_.clear();
        } else {
            path_.push_back({current_, 0});
        }
        return !isRound;
    }

    const QZTreeNode* root_;
    const QZTreeNode* current_ = nullptr;
    std::vector<Step> path_;
};

}  // namespace QZCore
