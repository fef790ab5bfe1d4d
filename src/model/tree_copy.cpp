#include <unordered_map>
#include <utility>

#include "QZCore/model/tree_node.h"
#include "model/tree_walk.h"

namespace QZCore {

/// Copies trees, one after the other: a datum that is a node is the root of one
/// more, so that nodes in data of nodes need no recursion.
class QZTreeNode::Copier {
public:
    std::shared_ptr<QZTreeNode> copy(const QZTreeNode& root) {
        auto result = copyOfRoot(root);
        while (!pending_.empty()) {
            const QZTreeNode* const next = pending_.back();
            pending_.pop_back();
            copyTree(*next);
        }
        return result;
    }

private:
    /// The copy, which is filled when its turn comes.
    std::shared_ptr<QZTreeNode> copyOfRoot(const QZTreeNode& root) {
        auto& copy = copies_[&root];
        if (copy == nullptr) {
            copy = root.newNode();
            pending_.push_back(&root);
        }
        return copy;
    }

    void copyTree(const QZTreeNode& root) {
        QZTreeNodes path{copies_[&root]};  // the copies of the node and its ancestors
        TreeWalk walk(root);
        while (const QZTreeNode* node = walk.next()) {
            if (walk.depth() > 0) {
                path.resize(walk.depth());
                path.push_back(node->newNode());
                path[walk.depth() - 1]->addChild(path.back());
            }
            path.back()->data_ = copyOfDatum(node->data_);
        }
    }

    Value copyOfDatum(const Value& datum) {
        const auto node = objectIn<QZTreeNode>(datum);
        return node == nullptr ? copyOf(datum) : Value(copyOfRoot(*node));
    }

    std::unordered_map<const QZTreeNode*, std::shared_ptr<QZTreeNode>> copies_;
    std::vector<const QZTreeNode*> pending_;
};

std::shared_ptr<QZTreeNode> QZTreeNode::copyWithZone() const { return Copier().copy(*this); }

}  // namespace QZCore
