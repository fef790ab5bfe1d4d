#include <unordered_map>
#include <utility>

#include "QZCore/model/tree_node.h"
#include "model/tree_walk.h"

namespace QZCore {

// A datum that is a node is copied after the tree that it was met in, so that
// nodes in data of nodes need no recursion.
std::shared_ptr<QZTreeNode> QZTreeNode::copyWithZone() const {
    std::unordered_map<const QZTreeNode*, std::shared_ptr<QZTreeNode>> copies;  // of roots
    std::vector<const QZTreeNode*> pending;
    const auto copyOfRoot = [&copies, &pending](const QZTreeNode& root) {
        auto& copy = copies[&root];
        if (copy == nullptr) {
            copy = root.newNode();
            pending.push_back(&root);
        }
        return copy;
    };
    auto result = copyOfRoot(*this);
    while (!pending.empty()) {
        const QZTreeNode* const root = pending.back();
        pending.pop_back();
        QZTreeNodes path{copies[root]};  // the copies of the node and its ancestors
        TreeWalk walk(*root);
        while (const QZTreeNode* node = walk.next()) {
            if (walk.depth() > 0) {
                path.resize(walk.depth());
                path.push_back(node->newNode());
                path[walk.depth() - 1]->addChild(path.back());
            }
            const auto nested = objectIn<QZTreeNode>(node->data());
            path.back()->data_ =
                nested == nullptr ? copyOf(node->data()) : Value(copyOfRoot(*nested));
        }
    }
    return result;
}

}  // namespace QZCore
