#include <algorithm>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/model/tree_node.h"
#include "support/log_capture.h"
#include "support/printing.h"
#include "support/tree_text.h"

namespace QZCore {
namespace {

using namespace testing;

const char16_t* const kTree = u"a(b(c(d) -) e -(f))";

const std::optional<Array> kNone;

void addInOrder(const NodeRef& node, QZTreeNodes& nodes) {
    nodes.push_back(node);
    for (const auto& child : node->children()) addInOrder(child, nodes);
}

template <class Matches>
NodeRef firstWith(const QZTreeNodes& nodes, Matches matches) {
    const auto found = std::ranges::find_if(nodes, matches, &QZTreeNode::data);
    return found == nodes.end() ? nullptr : *found;
}

std::optional<Array> joined(Array first, const Array& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}  // namespace

TEST_CASE("levels and relatives") {
    struct Row {
        const char16_t* node;
        const char16_t* ancestors;
        std::size_t maxLevel, descendants;
    };
    const Row rows[] = {
        {u"a", u"", 3, 7},    {u"b", u"a", 2, 3}, {u"c", u"ba", 1, 1},
        {u"d", u"cba", 0, 0}, {u"e", u"a", 0, 0},
    };
    const auto root = treeOf(kTree);
    REQUIRE(textOf(root) == kTree);
    const QZTreeNodes all = allNamed(root, u"abcdef");
    for (const Row& row : rows) {
        CAPTURE(String(row.node));
        const auto node = named(root, row.node);
        CHECK(node->level() == StringView(row.ancestors).size());
        CHECK(node->maxLevel() == row.maxLevel);
        CHECK(node->numberOfAllChildrenRecursively() == row.descendants);
        CHECK(node->rootNode() == root);
        for (const auto& other : all) {
            const bool descends =
                StringView(row.ancestors).find(*other->data().string()) != StringView::npos;
            CHECK(node->isDescendantOfNode(other) == descends);
            CHECK(node->isDescendantOfNodeInArray({nullptr, node, other}) == descends);
        }
        CHECK_FALSE(node->isDescendantOfNode(nullptr));
        CHECK_FALSE(node->isDescendantOfNodeInArray({}));
    }
    const LogCapture log;
    CHECK(namesOf({root->firstChild(), root->lastChild(), root->childAtIndex(1)}) == u"b-e");
    const auto leaf = named(root, u"d");
    for (const auto& none : {leaf->firstChild(), leaf->lastChild(), root->childAtIndex(3),
                             root->childAtIndex(SIZE_MAX), root->nextSibling(),
                             QZTreeNode::initWithData(u"unlisted", root, {})->nextSibling()}) {
        CHECK(none == nullptr);
    }
    CHECK(log.lines().empty());
    CHECK(root->indexOfChild(leaf) == kNotFound);
    CHECK(root->indexOfChildIdenticalTo(nullptr) == kNotFound);
}

TEST_CASE("a description is the datum's in braces") {
    CHECK(treeOf(u"a(b)")->description() == u"{a}");
    CHECK(QZTreeNode::treeNodeWithData(Value())->description() == u"{(null)}");
    CHECK(QZTreeNode::treeNodeWithData(Array{1, u"b"})->description() == u"{[1, b]}");
    auto node = treeOf(u"a");
    node->setData(Value(node));
    CHECK(node->description().size() < 1000);
    node->setData(Value());
}

TEST_CASE("searches and collections go through a tree depth first") {
    const Value letter = u"a";
    const Value pool[] = {Value(), letter, u"a", u"b", 7};
    const auto textIn = [](const Value& datum) {
        CHECK_FALSE(datum.isAbsent());
        return datum.string() == nullptr ? Value() : datum;
    };
    std::mt19937 random(4);
    for (int round = 0; round < 500; ++round) {
        const auto root = randomTree(random, 1 + random() % 8, 4).front();
        QZTreeNodes nodes;
        addInOrder(root, nodes);
        for (const auto& node : nodes) node->setData(pool[random() % std::size(pool)]);
        CAPTURE(textOf(root));
        for (const Value& wanted : pool) {
            const auto isEqual = [&wanted](const Value& datum) { return datum == wanted; };
            const auto isSame = [&wanted](const Value& datum) { return datum.isIdentical(wanted); };
            const bool isText = wanted.string() != nullptr;
            const NodeRef equal = wanted.isAbsent() ? nullptr : firstWith(nodes, isEqual);
            const NodeRef same = firstWith(nodes, isSame);
            REQUIRE(root->nodeWithData(wanted) == equal);
            REQUIRE(root->nodeWithDataIdenticalTo(wanted) == same);
            REQUIRE(root->nodeWithDataProperty(wanted, textIn) == (isText ? equal : nullptr));
            REQUIRE(root->nodeWithDataPropertyIdenticalTo(wanted, textIn) ==
                    (isText ? same : nullptr));
        }

        const QZTreeNodes below(nodes.begin() + 1, nodes.end());
        const Array data = QZTreeNode::dataArrayFromNodes(below);
        const bool isComplete = data.size() == below.size();
        Array texts = data;
        std::erase_if(texts, [](const Value& datum) { return datum.string() == nullptr; });
        REQUIRE(root->allChildrenRecursively() == below);
        REQUIRE(root->allChildrenDataRecursively() == (isComplete ? std::optional(data) : kNone));
        REQUIRE(root->allChildrenRecursivelyWithPropertySelector(textIn) == texts);
        // Only the node itself is filtered.
        const Array own = QZTreeNode::dataArrayFromNodes({root});
        const bool hasText = own.empty() || own[0].string() != nullptr;
        REQUIRE(root->allNodesWithDataRecursively() == (own.empty() ? below : nodes));
        REQUIRE(root->allNodesDataWithDataRecursively() ==
                (isComplete ? joined(own, data) : kNone));
        REQUIRE(root->allNodesWithDataWithPropertySelector(textIn) ==
                (hasText ? joined(own, texts) : kNone));
    }
}

TEST_CASE("pruning counts levels from the root of the whole tree") {
    const auto pruned = [](const char16_t* name, std::size_t level) {
        const auto whole = treeOf(kTree);
        named(whole, name)->pruneToLevel(level);
        CHECK(isLinked(whole));
        return textOf(whole);
    };
    CHECK(pruned(u"a", 0) == u"a");
    CHECK(pruned(u"a", 1) == u"a(b e -)");
    CHECK(pruned(u"a", 3) == kTree);  // no node is below
    CHECK(pruned(u"a", SIZE_MAX) == kTree);
    CHECK(pruned(u"b", 2) == u"a(b(c -) e -(f))");
    CHECK(pruned(u"c", 2) == pruned(u"b", 2));
    CHECK(pruned(u"c", 1) == kTree);
    // The level is that of the parent links, even where lists say something else.
    const auto root = treeOf(u"a(b(c))");
    const auto wrapper = QZTreeNode::initWithData(u"w", nullptr, QZTreeNodes{root->firstChild()});
    QZTreeNode::pruneChildrenOfNode(wrapper, 1);
    CHECK(textOf(wrapper) == u"w(b)");
    QZTreeNode::pruneChildrenOfNode(nullptr, 1);
}

TEST_CASE("a copy is deep, and of the same classes") {
    struct Marked final : QZTreeNode {
        [[nodiscard]] std::shared_ptr<QZTreeNode> newNode() const override {
            return std::make_shared<Marked>();
        }
    };
    const auto root = treeOf(kTree);
    root->firstChild()->addChild(std::make_shared<Marked>());
    const Value list = Value::mutableArray({u"x"});
    root->setData(list);
    root->lastChild()->setData(Value(treeOf(u"x(y)")));
    named(root, u"e")->setParent(nullptr);

    const auto branch = root->firstChild()->copyWithZone();
    CHECK(branch->parent() == nullptr);
    CHECK(textOf(branch) == textOf(root->firstChild()));
    CHECK(std::dynamic_pointer_cast<Marked>(branch->lastChild()) != nullptr);

    const auto copy = objectIn<QZTreeNode>(copyOf(Value(root)));
    CHECK(isLinked(copy));
    CHECK(copy->numberOfAllChildrenRecursively() == root->numberOfAllChildrenRecursively());
    list.mutableArray()->push_back(u"later");
    CHECK(copy->data() == Value(Array{u"x"}));
    const auto datum = objectIn<QZTreeNode>(copy->lastChild()->data());
    CHECK(textOf(datum) == u"x(y)");
    CHECK_FALSE(Value(datum).isIdentical(root->lastChild()->data()));
}

}  // namespace QZCore
