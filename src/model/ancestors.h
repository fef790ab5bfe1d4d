// The way from a node up to its root.
#pragma once

#include <bit>
#include <cstddef>
#include <memory>
#include <utility>

#include "QZCore/model/tree_node.h"

namespace QZCore {

/// Walks the ancestors of a node, its parent first.
class Ancestors {
public:
    explicit Ancestors(const QZTreeNode& node) : node_(&node), mark_(&node) {}

    /// The next ancestor; null at the end. The walk also ends when the ancestors
    /// go round: then it meets the one at the last power of two again.
    const QZTreeNode* next() {
        held_ = node_->parent();
        node_ = held_.get();
        if (node_ == nullptr || node_ == mark_) return nullptr;
        if (std::has_single_bit(++count_)) mark_ = node_;
        return node_;
    }

private:
    const QZTreeNode* node_;
    const QZTreeNode* mark_;
    std::shared_ptr<QZTreeNode> held_;
    std::size_t count_ = 0;
};

}  // namespace QZCore
