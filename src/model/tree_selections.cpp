// Operations on lists of nodes.

#include <utility>

#include "QZCore/model/tree_node.h"
#include "model/ancestry.h"
#include "model/tree_walk.h"

namespace QZCore {
namespace {

constexpr std::uint32_t kNone = Ancestry::kNone;

using Flags = std::vector<bool>;

Flags flagsOf(const QZTreeNodes& nodes, const Ancestry& ancestry) {
    Flags flags(ancestry.count());
    for (const auto& node : nodes) {
        if (node != nullptr) flags[ancestry.numberOf(node.get())] = true;
    }
    return flags;
}

/// The descendants of nodes that were chosen one after the other. Every node is
/// reached once, however many are chosen.
class Descendants {
public:
    explicit Descendants(const Ancestry& ancestry)
        : firstChild_(ancestry.count(), kNone),
          nextSibling_(ancestry.count(), kNone),
          reached_(ancestry.count()) {
        for (std::uint32_t node = 0; node < ancestry.count(); ++node) {
            const std::uint32_t parent = ancestry.parentOf(node);
            if (parent != kNone) nextSibling_[node] = std::exchange(firstChild_[parent], node);
        }
    }

    /// Whether `node` descends from one that was chosen.
    [[nodiscard]] bool contain(std::uint32_t node) const { return reached_[node]; }

    void choose(std::uint32_t node) {
        pending_.push_back(node);
        while (!pending_.empty()) {
            std::uint32_t child = firstChild_[pending_.back()];
            pending_.pop_back();
            for (; child != kNone; child = nextSibling_[child]) {
                if (reached_[child]) continue;
                reached_[child] = true;
                pending_.push_back(child);
            }
        }
    }

private:
    std::vector<std::uint32_t> firstChild_;
    std::vector<std::uint32_t> nextSibling_;
    Flags reached_;
    std::vector<std::uint32_t> pending_;
};

}  // namespace

QZTreeNodes QZTreeNode::rootBranchNodesFromNodesInArray(const QZTreeNodes& nodes) {
    const Ancestry ancestry(nodes);
    Flags isLeft = flagsOf(nodes, ancestry);
    Descendants belowResult(ancestry);
    QZTreeNodes result;
    for (const auto& node : nodes) {
        if (node == nullptr) continue;
        std::uint32_t number = ancestry.numberOf(node.get());
        if (!isLeft[number]) continue;
        isLeft[number] = false;
        const QZTreeNode* top = node.get();
        for (std::uint32_t parent = ancestry.parentOf(number); parent != kNone && isLeft[parent];
             parent = ancestry.parentOf(number)) {
            isLeft[parent] = false;
            number = parent;
            top = top->parent().get();
        }
        if (belowResult.contain(number)) continue;
        result.push_back(top->shared());
        belowResult.choose(number);
    }
    return result;
}

QZTreeNodes QZTreeNode::removeDescendantsFromNodesInArray(const QZTreeNodes& nodes) {
    const Ancestry ancestry(nodes);
    const Flags isListed = flagsOf(nodes, ancestry);
    Flags descends(ancestry.count());
    for (const std::uint32_t number : ancestry.topDown()) {
        const std::uint32_t parent = ancestry.parentOf(number);
        descends[number] = parent != kNone && (isListed[parent] || descends[parent]);
    }
    QZTreeNodes result;
    for (const auto& node : nodes) {
        if (node != nullptr && !descends[ancestry.numberOf(node.get())]) result.push_back(node);
    }
    return result;
}

std::shared_ptr<QZTreeNode> QZTreeNode::extractTreeFromTree(
    const std::shared_ptr<QZTreeNode>& tree, const QZTreeNodes& containingNodesInArray) {
    auto root = treeNodeWithData({});
    if (tree == nullptr) return root;
    const IdentityTable wanted(containingNodesInArray);
    // At each depth of the walk, the node that takes up those found below.
    QZTreeNodes targets{root};
    TreeWalk walk(*tree);
    walk.next();
    while (const QZTreeNode* node = walk.next()) {
        targets.resize(walk.depth());
        auto target = targets.back();
        if (wanted.contains(node)) {
            auto made = treeNodeWithData(node->data());
            target->addChild(made);
            target = std::move(made);
        }
        targets.push_back(std::move(target));
    }
    return root;
}

Array QZTreeNode::dataArrayFromNodes(const QZTreeNodes& nodes) {
    Array data;
    for (const auto& node : nodes) {
        if (node != nullptr && !node->data().isAbsent()) data.push_back(node->data());
    }
    return data;
}

}  // namespace QZCore
