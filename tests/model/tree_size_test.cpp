// Trees of a million nodes, on a stack that recursion would overflow. What is
// not linear does not end within the time of a test.
#include "QZCore/model/pair.h"
#include "QZCore/model/tree_node.h"
#include "support/printing.h"
#include "support/small_stack.h"
#include "support/tree_text.h"

namespace QZCore {
namespace {

using namespace testing;

constexpr std::size_t kNodes = 1'000'000;

/// All nodes below one.
QZTreeNodes wideTree() {
    QZTreeNodes nodes{QZTreeNode::treeNodeWithData(0)};
    for (std::size_t i = 1; i < kNodes; ++i) nodes.push_back(QZTreeNode::treeNodeWithData(i));
    nodes[0]->addChildren({nodes.begin() + 1, nodes.end()});
    return nodes;
}

QZTreeNodes chain() {
    std::mt19937 random;
    return randomTree(random, kNodes, 1);
}

void checkWholeTree(const QZTreeNodes& nodes, std::size_t maxLevel) {
    const auto& root = nodes.front();
    CHECK(root->numberOfAllChildrenRecursively() == kNodes - 1);
    CHECK(root->maxLevel() == maxLevel);
    CHECK(nodes.back()->level() == maxLevel);
    CHECK(nodes.back()->rootNode() == root);
    CHECK(nodes.back()->isDescendantOfNode(root));
    CHECK(root->nodeWithData(kNodes - 1) == nodes.back());
    CHECK(root->nodeWithData(u"absent") == nullptr);
    CHECK(root->allChildrenRecursively().back() == nodes.back());

    const auto copy = root->copyWithZone();
    CHECK(copy->numberOfAllChildrenRecursively() == kNodes - 1);
    CHECK(copy->maxLevel() == maxLevel);
    const auto extracted = QZTreeNode::extractTreeFromTree(root, nodes);
    CHECK(extracted->maxLevel() == maxLevel);
    copy->pruneToLevel(maxLevel / 2);
    CHECK(copy->maxLevel() == maxLevel / 2);

    CHECK(QZTreeNode::removeDescendantsFromNodesInArray(nodes) == QZTreeNodes{root});
    const QZTreeNodes upwards(nodes.rbegin(), nodes.rend());
    CHECK(QZTreeNode::rootBranchNodesFromNodesInArray(upwards) == QZTreeNodes{root});
}

}  // namespace

TEST_CASE("a chain of a million nodes") {
    onSmallStack([] {
        QZTreeNodes nodes = chain();
        checkWholeTree(nodes, kNodes - 1);
        // Every second node, the deepest first: all are branches of their own.
        QZTreeNodes gaps;
        for (std::size_t i = kNodes - 1; i > 1; i -= 2) gaps.push_back(nodes[i]);
        CHECK(QZTreeNode::rootBranchNodesFromNodesInArray(gaps).size() == gaps.size());
        CHECK(QZTreeNode::removeDescendantsFromNodesInArray(gaps).size() == 1);
    });
}

TEST_CASE("a million children of one node") {
    onSmallStack([] {
        QZTreeNodes nodes = wideTree();
        checkWholeTree(nodes, 1);
        const auto& root = nodes.front();
        std::size_t count = 1;
        for (auto at = nodes[1]; at != nodes.back(); at = at->nextSibling()) ++count;
        for (auto at = nodes.back(); at != nodes[1]; at = at->previousSibling()) --count;
        CHECK(count == 1);
        root->moveChildren({nodes.begin() + 10, nodes.end()}, 3);
        CHECK(root->childAtIndex(3) == nodes[10]);
        root->removeChildrenIdenticalTo({nodes.begin() + 2, nodes.end()});
        CHECK(root->children() == QZTreeNodes{nodes[1]});
    });
}

TEST_CASE("nodes in data of nodes are copied and released at any depth") {
    onSmallStack([] {
        auto node = treeOf(u"a(b)");
        for (int i = 0; i < 200'000; ++i) {
            Value inner(std::move(node));
            if (i % 5 == 1) inner = Value(Array{inner});
            if (i % 5 == 2) inner = Value(QZPair::pairWithKey(inner, i));
            node = QZTreeNode::treeNodeWithData(inner);
            if (i % 5 == 3) node->addChild(treeOf(u"c"));
        }
        CHECK(node->description().size() < 1000);
        CHECK(node->copyWithZone()->data() != node->data());
        node = nullptr;
        for (int i = 0; i < 200'000; ++i) node = QZTreeNode::treeNodeWithData(Value(node));
        node = node->copyWithZone();
    });
}

TEST_CASE("a node below itself ends every walk") {
    for (const std::size_t length : {1U, 2U, 3U, 7U}) {
        CAPTURE(length);
        std::mt19937 random;
        const QZTreeNodes nodes = randomTree(random, length, 1);
        nodes.back()->addChild(treeOf(u"x"));
        nodes.back()->addChild(nodes.front());
        const auto& node = nodes.front();
        CHECK(node->level() < 100);
        CHECK(node->maxLevel() < 100);
        CHECK(node->rootNode() != nullptr);
        CHECK(node->nodeWithData(u"absent") == nullptr);
        CHECK(node->copyWithZone()->hasChildren());
        CHECK_FALSE(QZTreeNode::rootBranchNodesFromNodesInArray(nodes).empty());
        CHECK(QZTreeNode::removeDescendantsFromNodesInArray(nodes).size() <= length);
        node->setData(Value(node));
        const auto copy = node->copyWithZone();
        CHECK(objectIn<QZTreeNode>(copy->data()) == copy);
        copy->setData(Value());
        copy->removeAllChildren();
        node->setData(Value());
        node->pruneToLevel(1000);
        nodes.back()->removeAllChildren();
    }
}

}  // namespace QZCore
