#include "QZCore/foundation/dictionary.h"
#include "QZCore/model/pair.h"
#include "QZCore/model/tree_node.h"
#include "support/log_capture.h"
#include "support/printing.h"
#include "support/tree_text.h"

namespace QZCore {
namespace {

using namespace testing;

const char16_t* const kTree = u"a(b(c(d) -) e -(f))";

/// The datum, as a word that knows its letter.
struct Word {
    String letter;
    bool operator==(const Word&) const = default;
};

const auto kLetter = [](const Value& datum) {
    const Word* word = datum.boxedValue<Word>();
    return word == nullptr || word->letter.empty() ? Value() : Value(word->letter);
};

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

TEST_CASE("searches take the first match, depth first") {
    const auto root = treeOf(u"-(a(c) - b c(d))");
    CHECK(root->nodeWithData(u"c") == root->firstChild()->firstChild());
    CHECK(root->nodeWithData(u"x") == nullptr);
    CHECK(root->nodeWithData(Value()) == nullptr);
    CHECK(root->nodeWithDataIdenticalTo(Value()) == root);
    CHECK(root->firstChild()->nodeWithDataIdenticalTo(Value()) == nullptr);

    const auto second = root->lastChild();
    CHECK(root->nodeWithDataIdenticalTo(second->data()) == second);
    CHECK(root->nodeWithDataIdenticalTo(u"c") == nullptr);  // equal is not enough
    second->setData(7);
    CHECK(root->nodeWithDataIdenticalTo(7) == second);
    CHECK(root->nodeWithData(7.0) == second);
}

TEST_CASE("properties are read by an accessor") {
    const auto root = treeOf(u"-(a(b - c) d)");
    const QZTreeNodes nodes = root->allChildrenRecursively();
    for (const auto& node : nodes) {
        if (!node->data().isAbsent()) node->setData(Value::boxed(Word{node->data().stringValue()}));
    }
    const auto& b = nodes[1];
    CHECK(root->nodeWithDataProperty(u"b", kLetter) == b);
    CHECK(root->nodeWithDataProperty(u"x", kLetter) == nullptr);
    CHECK(root->nodeWithDataPropertyIdenticalTo(u"b", kLetter) == nullptr);
    CHECK(root->nodeWithDataPropertyIdenticalTo(Value(), kLetter) == nullptr);
    CHECK(root->allNodesWithDataWithPropertySelector(kLetter) == Array{u"a", u"b", u"c", u"d"});

    const Value shared(u"shared");
    const auto sameForAll = [&shared](const Value&) { return shared; };
    CHECK(root->nodeWithDataPropertyIdenticalTo(shared, sameForAll) == root->firstChild());

    b->setData(Value::boxed(Word{}));  // no letter
    CHECK(root->nodeWithDataProperty(Value(), kLetter) == nullptr);
    CHECK(root->allChildrenRecursivelyWithPropertySelector(kLetter) == Array{u"a", u"c", u"d"});
    CHECK(b->allNodesWithDataWithPropertySelector(kLetter) == std::nullopt);
    root->setData(Value::boxed(Word{u"r"}));
    CHECK(root->allNodesWithDataWithPropertySelector(kLetter) == Array{u"r", u"a", u"c", u"d"});
}

TEST_CASE("collections hold descendants in order; only the node itself is filtered") {
    const auto complete = treeOf(u"a(b(c) d)");
    CHECK(namesOf(complete->allChildrenRecursively()) == u"bcd");
    CHECK(complete->allChildrenDataRecursively() == Array{u"b", u"c", u"d"});
    CHECK(namesOf(complete->allNodesWithDataRecursively()) == u"abcd");
    CHECK(complete->allNodesDataWithDataRecursively() == Array{u"a", u"b", u"c", u"d"});

    complete->setData(Value());
    CHECK(namesOf(complete->allNodesWithDataRecursively()) == u"bcd");
    CHECK(complete->allNodesDataWithDataRecursively() == Array{u"b", u"c", u"d"});

    const auto gap = treeOf(u"a(-(c) d)");
    CHECK(namesOf(gap->allNodesWithDataRecursively()) == u"a-cd");
    CHECK(gap->allChildrenDataRecursively() == std::nullopt);
    CHECK(gap->allNodesDataWithDataRecursively() == std::nullopt);
    CHECK(treeOf(u"-")->allChildrenDataRecursively() == Array());
}

TEST_CASE("pruning counts levels from the root of the whole tree") {
    struct Row {
        const char* why;
        const char16_t* node;
        std::size_t level;
        const char16_t* tree;
    };
    const Row rows[] = {
        {"the root's children", u"a", 0, u"a"},       {"below the children", u"a", 1, u"a(b e -)"},
        {"below the leaves", u"a", 3, kTree},         {"far below", u"a", SIZE_MAX, kTree},
        {"one branch", u"b", 2, u"a(b(c -) e -(f))"}, {"one node", u"c", 2, u"a(b(c -) e -(f))"},
        {"above the node", u"c", 1, kTree},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const auto root = treeOf(kTree);
        named(root, row.node)->pruneToLevel(row.level);
        CHECK(textOf(root) == row.tree);
        CHECK(isLinked(root));
    }
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
