#include <algorithm>

#include "QZCore/model/tree_node.h"
#include "support/printing.h"
#include "support/tree_text.h"

namespace QZCore {
namespace {

using namespace testing;

bool contains(const QZTreeNodes& nodes, const NodeRef& node) {
    return std::ranges::find(nodes, node) != nodes.end();
}

bool descends(const NodeRef& node, const QZTreeNodes& nodes) {
    for (auto up = node->parent(); up != nullptr; up = up->parent()) {
        if (contains(nodes, up)) return true;
    }
    return false;
}

/// The topmost nodes by the steps of the rule.
QZTreeNodes literalRootBranches(const QZTreeNodes& nodes) {
    QZTreeNodes work = nodes;
    QZTreeNodes result;
    while (!work.empty()) {
        NodeRef node = work.front();
        work.erase(work.begin());
        while (node->parent() != nullptr && contains(work, node->parent())) {
            std::erase(work, node);
            node = node->parent();
        }
        if (!descends(node, result)) result.push_back(node);
        std::erase(work, node);
    }
    return result;
}

QZTreeNodes literalWithoutDescendants(const QZTreeNodes& nodes) {
    QZTreeNodes result;
    std::ranges::copy_if(nodes, std::back_inserter(result),
                         [&nodes](const NodeRef& node) { return !descends(node, nodes); });
    return result;
}

}  // namespace

TEST_CASE("selections give what the steps give, in their order") {
    // Trees of all shapes, nodes listed twice, of more than one tree, and one
    // that its parent does not list.
    std::mt19937 random(5);
    for (int round = 0; round < 1500; ++round) {
        CAPTURE(round);
        QZTreeNodes nodes = randomTree(random, 1 + random() % 60, std::size_t{1} << random() % 7);
        const QZTreeNodes others = randomTree(random, 10, 3);
        nodes.insert(nodes.end(), others.begin(), others.end());
        nodes.push_back(QZTreeNode::initWithData(u"s", nodes[random() % 5], std::nullopt));
        QZTreeNodes selection(random() % (2 * nodes.size()));
        for (auto& node : selection) node = nodes[random() % nodes.size()];
        REQUIRE(QZTreeNode::rootBranchNodesFromNodesInArray(selection) ==
                literalRootBranches(selection));
        REQUIRE(QZTreeNode::removeDescendantsFromNodesInArray(selection) ==
                literalWithoutDescendants(selection));
    }
}

TEST_CASE("selections of a tree") {
    struct Row {
        const char* why;
        const char16_t* selection;
        const char16_t* rootBranches;
        const char16_t* withoutDescendants;
        const char16_t* extracted;
    };
    const Row rows[] = {
        {"nothing", u"", u"", u"", u"-"},
        {"parent after child", u"cb", u"b", u"b", u"-(b(c))"},
        {"grandparent first", u"bd", u"b", u"b", u"-(b(d))"},
        {"grandchild first, with a gap", u"db", u"db", u"b", u"-(b(d))"},
        {"the same with the gap filled", u"dbc", u"b", u"b", u"-(b(c(d)))"},
        {"two branches", u"fdc", u"fc", u"fc", u"-(c(d) f)"},
        {"one node twice", u"ff", u"f", u"ff", u"-(f)"},
        {"the root is never extracted", u"af", u"a", u"a", u"-(f)"},
    };
    const auto root = treeOf(u"a(b(c(d) e) f)");
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const QZTreeNodes selection = allNamed(root, row.selection);
        CHECK(namesOf(QZTreeNode::rootBranchNodesFromNodesInArray(selection)) == row.rootBranches);
        CHECK(namesOf(QZTreeNode::removeDescendantsFromNodesInArray(selection)) ==
              row.withoutDescendants);
        const auto extracted = QZTreeNode::extractTreeFromTree(root, selection);
        CHECK(textOf(extracted) == row.extracted);
        CHECK(isLinked(extracted));
        CHECK(textOf(root) == u"a(b(c(d) e) f)");
    }
    const auto extracted = QZTreeNode::extractTreeFromTree(root, allNamed(root, u"d"));
    CHECK(extracted->firstChild()->data().isIdentical(named(root, u"d")->data()));
}

TEST_CASE("empty pointers in lists are passed over") {
    const auto root = treeOf(u"a(b -)");
    const QZTreeNodes nodes{nullptr, root->lastChild(), root, nullptr};
    CHECK(QZTreeNode::rootBranchNodesFromNodesInArray(nodes) == QZTreeNodes{root});
    CHECK(QZTreeNode::removeDescendantsFromNodesInArray(nodes) == QZTreeNodes{root});
    CHECK(textOf(QZTreeNode::extractTreeFromTree(root, nodes)) == u"-(-)");
    CHECK(textOf(QZTreeNode::extractTreeFromTree(nullptr, nodes)) == u"-");
    CHECK(QZTreeNode::dataArrayFromNodes(nodes) == Array{u"a"});
}

}  // namespace QZCore
