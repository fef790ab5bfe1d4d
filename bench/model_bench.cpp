// Trees, archives and undo, beside Qt's standard items and undo stack, and
// beside trees written without further thought.
//
// The sizes are numbers of nodes, or of steps.
#include <benchmark/benchmark.h>

#include <QStandardItem>
#include <QUndoStack>
#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "QZCore/model.h"

namespace {

using QZCore::QZTreeNode;
using QZCore::QZTreeNodes;
using QZCore::Value;

constexpr int kMillion = 1'000'000;

// ---- Contestants ------------------------------------------------------------

/// Which node each node hangs below: in a bush the one that gives each ten, in a
/// chain the one before, in a wide tree the first.
enum Shape { Bush, Chain, Wide };

std::size_t parentOf(std::size_t node, Shape shape) {
    if (shape == Wide) return 0;
    return shape == Chain ? node - 1 : (node - 1) / 10;
}

struct Ours {
    using Node = std::shared_ptr<QZTreeNode>;
    using Nodes = QZTreeNodes;

    static Node make(std::size_t number) { return QZTreeNode::treeNodeWithData(number); }
    static void add(const Node& parent, const Node& child) { parent->addChild(child); }
    static bool find(const Node& root, std::size_t number) {
        return root->nodeWithData(number) != nullptr;
    }
    static Node copy(const Node& root) { return root->copyWithZone(); }
    static std::size_t height(const Node& root) { return root->maxLevel(); }
};

/// Shared pointers down, weak ones up, recursion everywhere.
struct Recursive {
    struct Tree;
    using Node = std::shared_ptr<Tree>;
    using Nodes = std::vector<Node>;
    struct Tree {
        Value data;
        std::weak_ptr<Tree> parent;
        std::vector<Node> children;
    };

    static Node make(std::size_t number) {
        auto node = std::make_shared<Tree>();
        node->data = number;
        return node;
    }
    static void add(const Node& parent, const Node& child) {
        child->parent = parent;
        parent->children.push_back(child);
    }
    static bool find(const Node& root, std::size_t number) {
        const Value data(number);
        const auto isIn = [&data](const auto& self, const Tree& tree) -> bool {
            return tree.data == data || std::ranges::any_of(tree.children, [&](const Node& c) {
                       return self(self, *c);
                   });
        };
        return isIn(isIn, *root);
    }
    static Node copy(const Node& root) {
        auto node = std::make_shared<Tree>();
        node->data = root->data;
        for (const Node& child : root->children) add(node, copy(child));
        return node;
    }
    static std::size_t height(const Node& root) {
        std::size_t deepest = 0;
        for (const Node& child : root->children) deepest = std::max(deepest, 1 + height(child));
        return deepest;
    }
};

/// Qt's items, which own their children.
struct Qt {
    using Node = QStandardItem*;
    struct Nodes : std::vector<Node> {
        explicit Nodes(Node root) : std::vector<Node>{root} {}
        ~Nodes() {
            if (!empty()) delete front();
        }
        Nodes(Nodes&&) = default;
        Nodes& operator=(Nodes&&) = delete;
    };

    static Node make(std::size_t number) {
        auto item = std::make_unique<QStandardItem>();
        item->setData(static_cast<qulonglong>(number));
        return item.release();
    }
    static void add(Node parent, Node child) { parent->appendRow(child); }
    static bool find(Node root, std::size_t number) {
        const QVariant data(static_cast<qulonglong>(number));
        const auto isIn = [&data](const auto& self, const QStandardItem& item) -> bool {
            if (item.data() == data) return true;
            for (int row = 0; row < item.rowCount(); ++row) {
                if (self(self, *item.child(row))) return true;
            }
            return false;
        };
        return isIn(isIn, *root);
    }
};

template <class Tree>
typename Tree::Nodes treeOf(std::size_t count, Shape shape) {
    typename Tree::Nodes nodes{Tree::make(0)};
    for (std::size_t i = 1; i < count; ++i) {
        nodes.push_back(Tree::make(i));
        Tree::add(nodes[parentOf(i, shape)], nodes.back());
    }
    return nodes;
}

// ---- Whole trees ------------------------------------------------------------

template <class Tree, Shape shape>
void buildAndRelease(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(treeOf<Tree>(count, shape).front());
}

template <class Tree, Shape shape>
void search(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const auto nodes = treeOf<Tree>(count, shape);
    for (auto _ : state) benchmark::DoNotOptimize(Tree::find(nodes.front(), count));
}

template <class Tree, Shape shape>
void copyTree(benchmark::State& state) {
    const auto nodes = treeOf<Tree>(static_cast<std::size_t>(state.range(0)), shape);
    for (auto _ : state) benchmark::DoNotOptimize(Tree::copy(nodes.front()));
}

template <class Tree, Shape shape>
void maxLevel(benchmark::State& state) {
    const auto nodes = treeOf<Tree>(static_cast<std::size_t>(state.range(0)), shape);
    for (auto _ : state) benchmark::DoNotOptimize(Tree::height(nodes.front()));
}

template <Shape shape>
void prune(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const auto root = treeOf<Ours>(static_cast<std::size_t>(state.range(0)), shape).front();
        state.ResumeTiming();
        root->pruneToLevel(1);
    }
}

void levelOfDeepest(benchmark::State& state) {
    const auto nodes = treeOf<Ours>(static_cast<std::size_t>(state.range(0)), Chain);
    for (auto _ : state) benchmark::DoNotOptimize(nodes.back()->level());
}

/// From the first child of a wide tree to the last, and back.
void walkSiblings(benchmark::State& state) {
    const auto nodes = treeOf<Ours>(static_cast<std::size_t>(state.range(0)), Wide);
    for (auto _ : state) {
        auto node = nodes[1];
        while (const auto next = node->nextSibling()) node = next;
        while (const auto previous = node->previousSibling()) node = previous;
        benchmark::DoNotOptimize(node);
    }
}

// A bush of a hundred nodes and one of a million show the growth; the peers
// that recurse see no chain.
void sizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(100)->Range(100, kMillion);
}

BENCHMARK(buildAndRelease<Ours, Bush>)->Name("tree build bush/QZCore")->Apply(sizes);
BENCHMARK(buildAndRelease<Recursive, Bush>)->Name("tree build bush/shared_ptr")->Apply(sizes);
BENCHMARK(buildAndRelease<Qt, Bush>)->Name("tree build bush/QStandardItem")->Apply(sizes);
BENCHMARK(buildAndRelease<Ours, Chain>)->Name("tree build chain/QZCore")->Apply(sizes);
BENCHMARK(buildAndRelease<Ours, Wide>)->Name("tree build wide/QZCore")->Apply(sizes);
BENCHMARK(buildAndRelease<Recursive, Wide>)->Name("tree build wide/shared_ptr")->Apply(sizes);

BENCHMARK(search<Ours, Bush>)->Name("tree search bush/QZCore")->Apply(sizes);
BENCHMARK(search<Recursive, Bush>)->Name("tree search bush/shared_ptr")->Apply(sizes);
BENCHMARK(search<Qt, Bush>)->Name("tree search bush/QStandardItem")->Apply(sizes);
BENCHMARK(search<Ours, Chain>)->Name("tree search chain/QZCore")->Apply(sizes);
BENCHMARK(search<Ours, Wide>)->Name("tree search wide/QZCore")->Apply(sizes);

BENCHMARK(copyTree<Ours, Bush>)->Name("tree copy bush/QZCore")->Apply(sizes);
BENCHMARK(copyTree<Recursive, Bush>)->Name("tree copy bush/shared_ptr")->Apply(sizes);
BENCHMARK(copyTree<Ours, Chain>)->Name("tree copy chain/QZCore")->Apply(sizes);

BENCHMARK(maxLevel<Ours, Bush>)->Name("tree maxLevel bush/QZCore")->Apply(sizes);
BENCHMARK(maxLevel<Recursive, Bush>)->Name("tree maxLevel bush/shared_ptr")->Apply(sizes);
BENCHMARK(maxLevel<Ours, Chain>)->Name("tree maxLevel chain/QZCore")->Apply(sizes);
BENCHMARK(levelOfDeepest)->Name("tree level chain/QZCore")->Apply(sizes);

BENCHMARK(walkSiblings)->Name("tree siblings wide/QZCore")->Apply(sizes);

BENCHMARK(prune<Bush>)->Name("tree prune bush/QZCore")->Arg(kMillion)->Iterations(3);
BENCHMARK(prune<Chain>)->Name("tree prune chain/QZCore")->Arg(kMillion)->Iterations(3);

// ---- Selections -------------------------------------------------------------

/// Every tenth node of a tree, in any order, and the tree.
struct Selection {
    Selection(std::size_t count, Shape shape) : tree(treeOf<Ours>(count * 10, shape)) {
        for (std::size_t i = 0; i < tree.size(); i += 10) nodes.push_back(tree[i]);
        std::ranges::shuffle(nodes, std::mt19937());
    }
    QZTreeNodes tree;
    QZTreeNodes nodes;
};

bool descendsFromAny(const QZTreeNode& node, const QZTreeNodes& nodes) {
    return std::ranges::any_of(
        nodes, [&node](const auto& other) { return node.isDescendantOfNode(other); });
}

QZTreeNodes withoutDescendantsByLists(const QZTreeNodes& nodes) {
    QZTreeNodes result;
    std::ranges::copy_if(nodes, std::back_inserter(result),
                         [&nodes](const auto& node) { return !descendsFromAny(*node, nodes); });
    return result;
}

template <auto operation, Shape shape>
void selection(benchmark::State& state) {
    const Selection selected(static_cast<std::size_t>(state.range(0)), shape);
    for (auto _ : state) benchmark::DoNotOptimize(operation(selected.nodes));
}

void selectionSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(1000, 100'000);
}

BENCHMARK(selection<QZTreeNode::removeDescendantsFromNodesInArray, Bush>)
    ->Name("selection without descendants bush/QZCore")
    ->Apply(selectionSizes);
BENCHMARK(selection<withoutDescendantsByLists, Bush>)
    ->Name("selection without descendants bush/lists")
    ->Arg(1000);
BENCHMARK(selection<QZTreeNode::removeDescendantsFromNodesInArray, Chain>)
    ->Name("selection without descendants chain/QZCore")
    ->Apply(selectionSizes);
BENCHMARK(selection<QZTreeNode::rootBranchNodesFromNodesInArray, Bush>)
    ->Name("selection root branches bush/QZCore")
    ->Apply(selectionSizes);
BENCHMARK(selection<QZTreeNode::rootBranchNodesFromNodesInArray, Chain>)
    ->Name("selection root branches chain/QZCore")
    ->Apply(selectionSizes);

// ---- Archives ---------------------------------------------------------------

QZCore::ArchiveClasses treeClasses() {
    return {.objects = {QZCore::archivedClass<QZTreeNode>(u"QZTreeNode")}};
}

template <Shape shape>
void archive(benchmark::State& state) {
    const Value root(treeOf<Ours>(static_cast<std::size_t>(state.range(0)), shape).front());
    const QZCore::ArchiveClasses classes = treeClasses();
    for (auto _ : state) benchmark::DoNotOptimize(QZCore::archivedData(root, classes));
}

template <Shape shape>
void unarchive(benchmark::State& state) {
    const Value root(treeOf<Ours>(static_cast<std::size_t>(state.range(0)), shape).front());
    const QZCore::ArchiveClasses classes = treeClasses();
    const QZCore::Data data = QZCore::archivedData(root, classes).data.value();
    for (auto _ : state) benchmark::DoNotOptimize(QZCore::unarchivedValue(data, classes));
}

/// The share of the property list in reading.
template <Shape shape>
void readList(benchmark::State& state) {
    const Value root(treeOf<Ours>(static_cast<std::size_t>(state.range(0)), shape).front());
    const QZCore::Data data = QZCore::archivedData(root, treeClasses()).data.value();
    for (auto _ : state) benchmark::DoNotOptimize(QZCore::readPropertyList(data));
}

BENCHMARK(archive<Bush>)->Name("archive write bush/QZCore")->Apply(sizes);
BENCHMARK(archive<Chain>)->Name("archive write chain/QZCore")->Apply(sizes);
BENCHMARK(unarchive<Bush>)->Name("archive read bush/QZCore")->Apply(sizes);
BENCHMARK(readList<Bush>)->Name("archive read bush/list alone")->Apply(sizes);
BENCHMARK(unarchive<Chain>)->Name("archive read chain/QZCore")->Apply(sizes);

// ---- Undo -------------------------------------------------------------------

void undoAndRedo(benchmark::State& state) {
    for (auto _ : state) {
        QZCore::UndoManager manager;
        std::int64_t value = 0;
        const auto set = [&](const auto& self, std::int64_t to) -> void {
            manager.registerUndoWithTarget(&value, [&self, from = value] { self(self, from); });
            value = to;
        };
        for (std::int64_t i = 0; i < state.range(0); ++i) set(set, i);
        while (manager.canUndo()) manager.undo();
        while (manager.canRedo()) manager.redo();
        benchmark::DoNotOptimize(value);
    }
}

class SetCommand final : public QUndoCommand {
public:
    SetCommand(std::int64_t& value, std::int64_t to) : value_(value), from_(value), to_(to) {}
    void undo() override { value_ = from_; }
    void redo() override { value_ = to_; }

private:
    std::int64_t& value_;
    std::int64_t from_;
    std::int64_t to_;
};

void undoAndRedoByQt(benchmark::State& state) {
    for (auto _ : state) {
        QUndoStack stack;
        std::int64_t value = 0;
        for (std::int64_t i = 0; i < state.range(0); ++i) stack.push(new SetCommand(value, i));
        while (stack.canUndo()) stack.undo();
        while (stack.canRedo()) stack.redo();
        benchmark::DoNotOptimize(value);
    }
}

BENCHMARK(undoAndRedo)->Name("undo/QZCore")->RangeMultiplier(10)->Range(1000, 100'000);
BENCHMARK(undoAndRedoByQt)->Name("undo/QUndoStack")->RangeMultiplier(10)->Range(1000, 100'000);

}  // namespace
