#include <algorithm>

#include "QZCore/model/tree_node.h"
#include "support/attempts.h"
#include "support/printing.h"
#include "support/tree_text.h"

namespace QZCore {
namespace {

using namespace testing;

/// A node whose name makes it equal to others.
class NamedNode final : public QZTreeNode {
public:
    explicit NamedNode(char16_t name) { setData(StringView(&name, 1)); }
    [[nodiscard]] bool isEqualTo(const Object& other) const override {
        const auto* node = dynamic_cast<const NamedNode*>(&other);
        return node != nullptr && node->data() == data();
    }
};

/// The parents and children of a list of nodes, by the rules step by step.
struct Twin {
    explicit Twin(const QZTreeNodes& nodes)
        : all(nodes), parents(nodes.size()), children(nodes.size()) {}

    void insert(std::size_t node, const QZTreeNodes& nodes, std::size_t index) {
        for (const auto& inserted : nodes) {
            QZTreeNodes& list = children[node];
            if (index <= list.size()) {
                list.insert(list.begin() + static_cast<std::ptrdiff_t>(index), inserted);
            }
            ++index;
        }
        for (const auto& inserted : nodes) parentOf(inserted) = all[node];
    }

    void remove(std::size_t node, const QZTreeNodes& nodes) {
        for (const auto& removed : nodes) {
            parentOf(removed) = nullptr;
            std::erase(children[node], removed);
        }
    }

    void move(std::size_t node, const QZTreeNodes& nodes, std::size_t index) {
        const QZTreeNodes before = children[node];
        remove(node, nodes);
        const auto after = index < before.size() ? std::ranges::find(children[node], before[index])
                                                 : children[node].end();
        if (index < before.size() && after == children[node].end()) return;
        insert(node, nodes, static_cast<std::size_t>(after - children[node].begin()));
    }

    NodeRef& parentOf(const NodeRef& node) {
        return parents[static_cast<std::size_t>(node->data().intValue())];
    }

    const QZTreeNodes& all;
    QZTreeNodes parents;
    std::vector<QZTreeNodes> children;
};

}  // namespace

TEST_CASE("random changes give what the rules give step by step") {
    constexpr std::size_t kNodes = 120;
    constexpr std::size_t kParents = 3;
    std::mt19937 random(11);
    QZTreeNodes nodes;
    for (std::size_t i = 0; i < kNodes; ++i) nodes.push_back(QZTreeNode::treeNodeWithData(i));
    Twin twin(nodes);
    for (int step = 0; step < 1500; ++step) {
        CAPTURE(step);
        const LogCapture log;
        const std::size_t node = random() % kParents;
        QZTreeNodes chosen(random() % 9);
        for (auto& each : chosen) each = nodes[kParents + random() % (kNodes - kParents)];
        const std::size_t index = random() % (twin.children[node].size() + 2);
        switch (random() % 5) {
            case 0:
                nodes[node]->addChildren(chosen);
                twin.insert(node, chosen, twin.children[node].size());
                break;
            case 1:
                nodes[node]->removeChildrenIdenticalTo(chosen);
                twin.remove(node, chosen);
                break;
            case 2:
                nodes[node]->moveChildren(chosen, index);
                twin.move(node, chosen, index);
                break;
            default:
                nodes[node]->insertChildren(chosen, index);
                twin.insert(node, chosen, index);
        }
        for (std::size_t i = 0; i < kNodes; ++i) REQUIRE(nodes[i]->parent() == twin.parents[i]);
        for (std::size_t parent = 0; parent < kParents; ++parent) {
            const QZTreeNodes& list = twin.children[parent];
            REQUIRE(nodes[parent]->children() == list);
            // Looking for children is as right the first time as when it is indexed.
            for (const auto& child : nodes) {
                const auto found = std::ranges::find(list, child);
                const auto place = static_cast<std::size_t>(found - list.begin());
                const bool isListed = found != list.end();
                REQUIRE(nodes[parent]->indexOfChildIdenticalTo(child) ==
                        (isListed ? place : kNotFound));
                if (child->parent() != nodes[parent]) continue;
                REQUIRE(child->nextSibling() ==
                        (isListed && place + 1 < list.size() ? list[place + 1] : nullptr));
                REQUIRE(child->previousSibling() ==
                        (isListed && place > 0 ? list[place - 1] : nullptr));
            }
        }
    }
}

TEST_CASE("children given at the start keep their parent until they are set") {
    const auto tree = treeOf(u"a(b c)");
    const auto b = tree->firstChild();
    const auto wrapped = QZTreeNode::initWithData(u"w", tree, QZTreeNodes{b, nullptr});
    CHECK(textOf(wrapped) == u"w(b)");
    CHECK(textOf(tree) == u"a(b c)");
    CHECK(wrapped->parent() == tree);
    CHECK(b->parent() == tree);
    wrapped->setChildren(wrapped->children());
    CHECK(b->parent() == wrapped);
    wrapped->setChildren({treeOf(u"d"), nullptr, treeOf(u"e")});
    CHECK(textOf(wrapped) == u"w(d e)");
    CHECK(isLinked(wrapped));
    CHECK(b->parent() == wrapped);  // former children are not told
    CHECK(textOf(QZTreeNode::initWithData(Value(), nullptr, std::nullopt)) == u"-");
}

TEST_CASE("what cannot be inserted is logged and linked all the same") {
    const String noObject = u"insertObject:atIndex with a nil object";
    const auto at = [](const char16_t* index) { return u"insertObject:atIndex:" + String(index); };
    struct Row {
        const char* why;
        const char16_t* nodes;  // a blank is an empty pointer
        std::size_t index;
        const char16_t* result;
        std::vector<String> calls;
    };
    const Row rows[] = {
        {"nothing", u"", 9, u"r(x y)", {}},
        {"beyond", u"ab", 3, u"r(x y)", {at(u"3 with count:2"), at(u"4 with count:2")}},
        {"far beyond", u"a", SIZE_MAX, u"r(x y)", {at(u"18446744073709551615 with count:2")}},
        {"an index is lost", u"a b", 0, u"r(a x b y)", {noObject}},
        {"until it is beyond",
         u"a  b",
         1,
         u"r(x a y)",
         {noObject, noObject, at(u"4 with count:3")}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const LogCapture log;
        const auto root = treeOf(u"r(x y)");
        QZTreeNodes nodes;
        for (const char16_t& unit : StringView(row.nodes)) {
            nodes.push_back(unit == u' ' ? nullptr : treeOf(StringView(&unit, 1)));
        }
        root->insertChildren(nodes, row.index);
        CHECK(textOf(root) == row.result);
        CHECK(attempts(log) == row.calls);
        for (const auto& node : nodes) CHECK((node == nullptr || node->parent() == root));
        if (nodes.size() != 1) continue;
        root->insertChild(nodes[0], row.index);
        root->addChild(nullptr);
        CHECK(attempts(log) == std::vector{row.calls[0], row.calls[0], noObject});
        CHECK(nodes[0]->parent() == root);
    }
}

TEST_CASE("moving to the place of a moved child loses it") {
    const auto moved = [](const char16_t* names, std::size_t index) {
        const auto root = treeOf(u"r(a b c d)");
        root->moveChildren(allNamed(root, names), index);
        return textOf(root);
    };
    CHECK(moved(u"db", 2) == u"r(a d b c)");
    CHECK(moved(u"ab", 99) == u"r(c d a b)");
    CHECK(moved(u"ac", 2) == u"r(b d)");
    const auto root = treeOf(u"r(a b c)");
    const auto last = root->lastChild();
    root->moveChild(last, 2);
    CHECK(textOf(root) == u"r(a b)");
    CHECK(last->parent() == nullptr);
}

TEST_CASE("removing takes the parent from all that are named") {
    const auto root = treeOf(u"r(a(b) c d)");
    const auto grandchild = named(root, u"b");
    root->removeChildrenIdenticalTo({grandchild, nullptr, named(root, u"c")});
    CHECK(textOf(root) == u"r(a(b) d)");
    CHECK(grandchild->parent() == nullptr);  // although it is still in a list
    root->removeChild(grandchild);
    root->removeChild(nullptr);
    grandchild->removeFromParent();
    CHECK(textOf(root) == u"r(a(b) d)");
    named(root, u"d")->removeFromParent();
    CHECK(textOf(root) == u"r(a(b))");
    const auto child = root->firstChild();
    root->removeAllChildren();
    CHECK_FALSE(root->hasChildren());
    CHECK(child->parent() == nullptr);
}

TEST_CASE("removing one child finds the first that is equal") {
    const auto root = treeOf(u"r");
    const QZTreeNodes nodes{std::make_shared<NamedNode>(u'a'), std::make_shared<NamedNode>(u'b'),
                            std::make_shared<NamedNode>(u'b')};
    root->addChildren(nodes);
    CHECK(root->indexOfChild(nodes[2]) == 1);
    CHECK(root->indexOfChildIdenticalTo(nodes[2]) == 2);
    nodes[2]->removeFromParent();
    CHECK(root->children() == QZTreeNodes{nodes[0], nodes[2]});
    CHECK(nodes[1]->parent() == nullptr);
    CHECK(nodes[2]->parent() == root);
}

TEST_CASE("a list may be given to the node that it belongs to") {
    const auto root = treeOf(u"r(a b)");
    root->addChild(root->children()[0]);
    root->addChildren(root->children());
    CHECK(textOf(root) == u"r(a b a a b a)");
    root->moveChildren(root->children(), 9);
    CHECK(root->numberOfChildren() == 6);
    root->removeChild(root->children()[0]);
    CHECK(textOf(root) == u"r(b b)");
    const auto child = root->firstChild();
    root->removeChildrenIdenticalTo(root->children());
    CHECK_FALSE(root->hasChildren());
    CHECK(child->parent() == nullptr);
}

TEST_CASE("children outlive their parent, without one") {
    auto root = treeOf(u"r(a(b))");
    const auto child = root->firstChild();
    root = nullptr;
    CHECK(child->parent() == nullptr);
    CHECK(textOf(child->rootNode()) == u"a(b)");
}

}  // namespace QZCore
