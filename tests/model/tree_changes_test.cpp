#include <algorithm>

#include "QZCore/model/tree_node.h"
#include "support/log_capture.h"
#include "support/printing.h"
#include "support/tree_text.h"

namespace QZCore {
namespace {

using namespace testing;

const String kNoObject = u"Attempting to call insertObject:atIndex with a nil object";

String beyond(std::size_t index, std::size_t count) {
    return u"Attempting to call insertObject:atIndex:" + unsignedString(index) + u" with count:" +
           unsignedString(count);
}

/// The lines without the stacks, each of which follows its line.
std::vector<String> refusals(const LogCapture& log) {
    std::vector<String> lines;
    for (const String& line : log.lines()) {
        if (line.starts_with(u"Stack trace: ") && line.size() > 20) continue;
        lines.push_back(line);
    }
    CHECK(log.lines().size() == 2 * lines.size());
    return lines;
}

/// A node whose name makes it equal to others.
class NamedNode final : public QZTreeNode {
public:
    explicit NamedNode(char16_t name) { setData(StringView(&name, 1)); }
    [[nodiscard]] bool isEqualTo(const Object& other) const override {
        const auto* node = dynamic_cast<const NamedNode*>(&other);
        return node != nullptr && node->data() == data();
    }
};

// ---- A twin that follows the rules step by step ----

/// Parents and children of the nodes of a list, by number.
struct Twin {
    static constexpr std::size_t kRoot = SIZE_MAX;
    using Numbers = std::vector<std::size_t>;

    explicit Twin(std::size_t count) : parents(count, kRoot), children(count) {}

    void insert(std::size_t node, const Numbers& nodes, std::size_t index) {
        for (const std::size_t inserted : nodes) {
            Numbers& list = children[node];
            if (index <= list.size()) {
                list.insert(list.begin() + static_cast<std::ptrdiff_t>(index), inserted);
            }
            ++index;
        }
        for (const std::size_t inserted : nodes) parents[inserted] = node;
    }

    void remove(std::size_t node, const Numbers& nodes) {
        for (const std::size_t removed : nodes) {
            parents[removed] = kRoot;
            std::erase(children[node], removed);
        }
    }

    void move(std::size_t node, const Numbers& nodes, std::size_t index) {
        if (index >= children[node].size()) {
            remove(node, nodes);
            insert(node, nodes, children[node].size());
            return;
        }
        const std::size_t anchor = children[node][index];
        remove(node, nodes);
        const auto found = std::ranges::find(children[node], anchor);
        if (found == children[node].end()) return;
        insert(node, nodes, static_cast<std::size_t>(found - children[node].begin()));
    }

    Numbers parents;
    std::vector<Numbers> children;
};

}  // namespace

TEST_CASE("random changes give what the rules give step by step") {
    constexpr std::size_t kNodes = 40;
    std::mt19937 random(11);
    QZTreeNodes nodes;
    for (std::size_t i = 0; i < kNodes; ++i) nodes.push_back(QZTreeNode::treeNodeWithData(i));
    Twin twin(kNodes);
    for (int step = 0; step < 3000; ++step) {
        CAPTURE(step);
        const LogCapture log;
        // Children have higher numbers, so that no node gets below itself.
        const std::size_t node = random() % (kNodes - 8);
        Twin::Numbers numbers(random() % 4);
        for (std::size_t& number : numbers) number = node + 1 + random() % (kNodes - node - 1);
        QZTreeNodes chosen;
        for (const std::size_t number : numbers) chosen.push_back(nodes[number]);
        const std::size_t index = random() % (twin.children[node].size() + 2);
        switch (random() % 4) {
            case 0:
                nodes[node]->insertChildren(chosen, index);
                twin.insert(node, numbers, index);
                break;
            case 1:
                nodes[node]->addChildren(chosen);
                twin.insert(node, numbers, twin.children[node].size());
                break;
            case 2:
                nodes[node]->removeChildrenIdenticalTo(chosen);
                twin.remove(node, numbers);
                break;
            default:
                nodes[node]->moveChildren(chosen, index);
                twin.move(node, numbers, index);
        }
        for (std::size_t i = 0; i < kNodes; ++i) {
            REQUIRE(nodes[i]->numberOfChildren() == twin.children[i].size());
            for (std::size_t at = 0; at < twin.children[i].size(); ++at) {
                REQUIRE(nodes[i]->childAtIndex(at) == nodes[twin.children[i][at]]);
            }
            const auto parent = nodes[i]->parent();
            REQUIRE(parent == (twin.parents[i] == Twin::kRoot ? nullptr : nodes[twin.parents[i]]));
        }
    }
}

TEST_CASE("children given at the start keep their parent until they are set") {
    const auto tree = treeOf(u"a(b c)");
    const auto wrapped =
        QZTreeNode::initWithData(u"w", tree, QZTreeNodes{tree->firstChild(), nullptr});
    CHECK(textOf(wrapped) == u"w(b)");
    CHECK(wrapped->parent() == tree);
    CHECK(textOf(tree) == u"a(b c)");
    CHECK(tree->firstChild()->parent() == tree);
    wrapped->setChildren(wrapped->children());
    CHECK(tree->firstChild()->parent() == wrapped);

    wrapped->setChildren({treeOf(u"d"), nullptr, treeOf(u"e")});
    CHECK(textOf(wrapped) == u"w(d e)");
    CHECK(isLinked(wrapped));
    CHECK(tree->firstChild()->parent() == wrapped);  // former children are not told

    CHECK(textOf(QZTreeNode::initWithData(Value(), nullptr, std::nullopt)) == u"-");
}

TEST_CASE("what cannot be inserted is logged and linked all the same") {
    struct Row {
        const char* why;
        const char16_t* nodes;  // a blank is an empty pointer
        std::size_t index;
        const char16_t* result;
        std::vector<String> lines;
    };
    const Row rows[] = {
        {"nothing to insert", u"", 9, u"r(x y)", {}},
        {"in the middle", u"ab", 1, u"r(x a b y)", {}},
        {"at the end", u"ab", 2, u"r(x y a b)", {}},
        {"beyond the end", u"ab", 3, u"r(x y)", {beyond(3, 2), beyond(4, 2)}},
        {"far beyond", u"a", SIZE_MAX, u"r(x y)", {beyond(SIZE_MAX, 2)}},
        {"no node", u" ", 0, u"r(x y)", {kNoObject}},
        {"an index is lost", u"a b", 0, u"r(a x b y)", {kNoObject}},
        {"until it is beyond",
         u"a   b",
         1,
         u"r(x a y)",
         {kNoObject, kNoObject, kNoObject, beyond(5, 3)}},
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
        CHECK(refusals(log) == row.lines);
        for (const auto& node : nodes) CHECK((node == nullptr || node->parent() == root));
    }
    const LogCapture log;
    const auto root = treeOf(u"r(x)");
    const auto child = treeOf(u"a");
    root->insertChild(child, 2);
    root->addChild(nullptr);
    CHECK(child->parent() == root);
    CHECK(textOf(root) == u"r(x)");
    CHECK(refusals(log) == std::vector<String>{beyond(2, 1), kNoObject});
}

TEST_CASE("moving to the place of a moved child loses it") {
    struct Row {
        const char* why;
        const char16_t* moved;
        std::size_t index;
        const char16_t* result;
    };
    const Row rows[] = {
        {"forwards", u"b", 0, u"r(b a c d)"},
        {"backwards", u"a", 2, u"r(b a c d)"},
        {"in the order given", u"db", 2, u"r(a d b c)"},
        {"to the end", u"a", 4, u"r(b c d a)"},
        {"beyond the end", u"ab", 99, u"r(c d a b)"},
        {"to its own place", u"c", 2, u"r(a b d)"},
        {"to the place of another", u"ac", 2, u"r(b d)"},
        {"nothing", u"", 1, u"r(a b c d)"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const auto root = treeOf(u"r(a b c d)");
        const QZTreeNodes moved = allNamed(root, row.moved);
        root->moveChildren(moved, row.index);
        CHECK(textOf(root) == row.result);
        CHECK(isLinked(root));
        const bool areLost = root->numberOfChildren() < 4;
        for (const auto& node : moved) CHECK(node->parent() == (areLost ? nullptr : root));
    }
    const auto root = treeOf(u"r(a b)");
    root->moveChild(root->lastChild(), 0);
    CHECK(textOf(root) == u"r(b a)");
}

TEST_CASE("removing takes the parent from all that are named") {
    const auto root = treeOf(u"r(a(b) c d)");
    const auto grandchild = named(root, u"b");
    root->removeChildrenIdenticalTo({grandchild, nullptr, named(root, u"c")});
    CHECK(textOf(root) == u"r(a(b) d)");
    CHECK(grandchild->parent() == nullptr);  // although it is still in a list

    root->removeChild(grandchild);
    root->removeChild(nullptr);
    CHECK(textOf(root) == u"r(a(b) d)");
    named(root, u"d")->removeFromParent();
    grandchild->removeFromParent();
    CHECK(textOf(root) == u"r(a(b))");
    root->removeAllChildren();
    CHECK(textOf(root) == u"r");
    CHECK_FALSE(root->hasChildren());

    const auto list = treeOf(u"r(a b c)");
    const QZTreeNodes kept = list->children();
    list->removeChildrenIdenticalTo(list->children());  // the list that is changed
    CHECK(textOf(list) == u"r");
    for (const auto& node : kept) CHECK(node->parent() == nullptr);
}

TEST_CASE("removing one child finds the first that is equal") {
    const auto root = treeOf(u"r");
    const QZTreeNodes nodes{std::make_shared<NamedNode>(u'a'), std::make_shared<NamedNode>(u'b'),
                            std::make_shared<NamedNode>(u'b')};
    root->addChildren(nodes);
    CHECK(root->indexOfChild(nodes[2]) == 1);
    CHECK(root->indexOfChildIdenticalTo(nodes[2]) == 2);
    root->removeChild(nodes[2]);
    CHECK(root->children() == QZTreeNodes{nodes[0], nodes[2]});
    CHECK(nodes[1]->parent() == nullptr);
    CHECK(nodes[2]->parent() == root);
}

TEST_CASE("a list may be given to the node that it belongs to") {
    const auto root = treeOf(u"r(a b)");
    root->addChild(root->children()[0]);
    CHECK(textOf(root) == u"r(a b a)");
    root->addChildren(root->children());
    CHECK(textOf(root) == u"r(a b a a b a)");
    root->moveChildren(root->children(), 9);
    CHECK(root->numberOfChildren() == 6);
    root->removeChild(root->children()[0]);
    CHECK(textOf(root) == u"r(b b)");
}

TEST_CASE("children are found at their first places, however often they are looked for") {
    std::mt19937 random(3);
    const auto root = treeOf(u"r");
    QZTreeNodes nodes;
    for (std::size_t i = 0; i < 200; ++i) nodes.push_back(QZTreeNode::treeNodeWithData(i));
    root->addChildren(nodes);
    for (int round = 0; round < 200; ++round) {
        CAPTURE(round);
        const auto& node = nodes[random() % nodes.size()];
        switch (random() % 5) {
            case 0:
                root->removeChild(node);
                break;
            case 1:
                root->setChildren({nodes.begin(), nodes.begin() + random() % 200});
                break;
            default:  // often once more
                root->insertChild(node, random() % (root->numberOfChildren() + 1));
        }
        const QZTreeNodes list = root->children();
        for (const auto& wanted : nodes) {
            const auto found = std::ranges::find(list, wanted);
            const auto place = static_cast<std::size_t>(found - list.begin());
            REQUIRE(root->indexOfChildIdenticalTo(wanted) ==
                    (found == list.end() ? kNotFound : place));
        }
    }
}

TEST_CASE("children outlive their parent, without one") {
    auto root = treeOf(u"r(a(b))");
    const auto child = root->firstChild();
    root = nullptr;
    CHECK(child->parent() == nullptr);
    CHECK(textOf(child->rootNode()) == u"a(b)");
}

}  // namespace QZCore
