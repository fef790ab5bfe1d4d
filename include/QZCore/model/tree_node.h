// A generic ordered tree.
//
// A node owns its datum and its children, in order, and refers to its parent
// without owning it. Trees may be of any depth and width: nothing here recurses,
// and what looks at a whole tree takes time linear in it. Nodes are found and
// compared by identity, unless a comment says "equal".
//
// Empty pointers in lists are passed over, except where a comment says what
// else they do. A node that has been made its own descendant is a mistake of
// the caller: walks end soon after they notice it, with incomplete results.
//
// A tree is used from one thread at a time, also where it is only read.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/value.h"
#include "QZCore/model/objects.h"
#include "QZCore/model/property_selector.h"

namespace QZCore {

class ArchiveDecoder;
class ArchiveEncoder;
class QZTreeNode;

/// A list of nodes.
using QZTreeNodes = std::vector<std::shared_ptr<QZTreeNode>>;

/// A node, and through its children a tree. Nodes stand in values as
/// `Value(node)`; `objectIn<QZTreeNode>` gets them back.
class QZ_EXPORT QZTreeNode : public CopyableObject,
                             public std::enable_shared_from_this<QZTreeNode> {
    struct Making {
        explicit Making() = default;
    };

public:
    // ---- Making ----

    /// A node with the datum, without parent and children.
    [[nodiscard]] static std::shared_ptr<QZTreeNode> treeNodeWithData(Value data);

    /// A node with the datum. The parent, which may be empty, is not told about
    /// it. Without a list there are no children; children that are given go into
    /// the node's list but keep the parent that they had. That differs from
    /// `setChildren` on purpose: callers wrap nodes that stay where they are.
    [[nodiscard]] static std::shared_ptr<QZTreeNode> initWithData(
        Value data, const std::shared_ptr<QZTreeNode>& parent,
        const std::optional<QZTreeNodes>& children);

    /// For this class only; nodes are made by the functions above.
    QZTreeNode(Making /*only*/, Value data) : data_(std::move(data)) {}

    /// Lets go of the datum and the children. Children that somebody else holds
    /// are left without parent.
    ~QZTreeNode() override;

    // ---- The three fields ----

    /// The parent; empty for a root, and after the parent has gone.
    [[nodiscard]] std::shared_ptr<QZTreeNode> parent() const { return parent_.lock(); }

    /// Sets the parent, and nothing else: no list of children changes.
    void setParent(const std::shared_ptr<QZTreeNode>& parent) { parent_ = parent; }

    /// The children in order. Valid until they change.
    [[nodiscard]] const QZTreeNodes& children() const {
        return list_ == nullptr ? noChildren() : list_->nodes;
    }

    /// Takes a copy of the list, unless it is the very list that the node
    /// holds, and makes the node the parent of all in it. Former children keep
    /// their parent.
    void setChildren(const QZTreeNodes& nodes);

    /// The datum.
    [[nodiscard]] const Value& data() const { return data_; }

    /// Replaces the datum.
    void setData(Value data) { data_ = std::move(data); }

    // ---- Inserting ----
    //
    // An empty pointer, or an index beyond the number of children, is not
    // inserted and logs "Attempting to call insertObject:atIndex with a nil
    // object" or "Attempting to call insertObject:atIndex:INDEX with
    // count:COUNT", followed by a line "Stack trace: " and the callers. The
    // node becomes the parent even of those that were not inserted. A former
    // parent keeps its list as it is.

    /// Inserts at the end.
    void addChild(std::shared_ptr<QZTreeNode> child);

    /// Inserts all at the end.
    void addChildren(QZTreeNodes children);

    /// Inserts before the child at the index.
    void insertChild(std::shared_ptr<QZTreeNode> child, std::size_t atIndex);

    /// Inserts each at the index and the ones that follow. One that is not
    /// inserted still takes up its index.
    void insertChildren(QZTreeNodes children, std::size_t atIndex);

    // ---- Removing and moving ----

    /// Removes the first child that is equal to `child`.
    void removeChild(const std::shared_ptr<QZTreeNode>& child);

    /// Takes the parent from every node in `nodes`, also from those that are
    /// not children of this node, and removes them from the children.
    void removeChildrenIdenticalTo(const QZTreeNodes& nodes);

    /// Removes all children and takes their parent.
    void removeAllChildren();

    /// `moveChildren` for one child.
    void moveChild(const std::shared_ptr<QZTreeNode>& child, std::size_t toIndex);

    /// Moves children of this node, in the order given, before the child that is
    /// at the index now, or to the end when there is none. When that child is
    /// among those moved, they are removed and stay without parent: a place
    /// that is about to go is no place, so name an index that stays.
    void moveChildren(QZTreeNodes children, std::size_t toIndex);

    /// Has the parent, if there is one, remove this node by `removeChild`.
    void removeFromParent();

    // ---- Children and siblings ----

    /// The index of the first child equal to `child`, or `kNotFound`.
    [[nodiscard]] std::size_t indexOfChild(const std::shared_ptr<QZTreeNode>& child) const;

    /// The index of the child itself, or `kNotFound`.
    [[nodiscard]] std::size_t indexOfChildIdenticalTo(
        const std::shared_ptr<QZTreeNode>& child) const;

    /// Whether there are children.
    [[nodiscard]] bool hasChildren() const { return list_ != nullptr && !list_->nodes.empty(); }

    /// The number of children.
    [[nodiscard]] std::size_t numberOfChildren() const { return children().size(); }

    /// The first child; empty when there is none.
    [[nodiscard]] std::shared_ptr<QZTreeNode> firstChild() const { return childAtIndex(0); }

    /// The last child; empty when there is none.
    [[nodiscard]] std::shared_ptr<QZTreeNode> lastChild() const;

    /// The child at `index`; empty, without a log line, when there is none.
    [[nodiscard]] std::shared_ptr<QZTreeNode> childAtIndex(std::size_t index) const;

    /// The child of the parent after this node; empty when this is the last,
    /// when the parent does not list it, and without parent.
    [[nodiscard]] std::shared_ptr<QZTreeNode> nextSibling() const;

    /// The child of the parent before this node; empty as above.
    [[nodiscard]] std::shared_ptr<QZTreeNode> previousSibling() const;

    // ---- Ancestors and levels ----

    /// The node itself when it has no parent, else the ancestor that has none.
    [[nodiscard]] std::shared_ptr<QZTreeNode> rootNode() const;

    /// The number of ancestors.
    [[nodiscard]] std::size_t level() const;

    /// The number of levels below this node: 0 without children.
    [[nodiscard]] std::size_t maxLevel() const;

    /// The number of all descendants.
    [[nodiscard]] std::size_t numberOfAllChildrenRecursively() const;

    /// Whether `node` is an ancestor of this one. A node is not its own.
    [[nodiscard]] bool isDescendantOfNode(const std::shared_ptr<QZTreeNode>& node) const;

    /// Whether one of `nodes` is an ancestor of this one.
    [[nodiscard]] bool isDescendantOfNodeInArray(const QZTreeNodes& nodes) const;

    /// The datum's description in braces.
    [[nodiscard]] String description() const override;

    // ---- Searching ----
    //
    // This node is looked at first, every node before its children, and
    // children in order. The first match counts; empty when there is none.

    /// The node whose datum is equal to `data`. An absent datum equals none.
    [[nodiscard]] std::shared_ptr<QZTreeNode> nodeWithData(const Value& data) const;

    /// The node whose datum is `data` itself; for an absent one, the first node
    /// without a datum.
    [[nodiscard]] std::shared_ptr<QZTreeNode> nodeWithDataIdenticalTo(const Value& data) const;

    /// The node with a datum whose property is equal to `property`. An absent
    /// property equals none.
    [[nodiscard]] std::shared_ptr<QZTreeNode> nodeWithDataProperty(
        const Value& property, PropertySelector withPropertySelector) const;

    /// The node with a datum whose property is `property` itself. Empty for an
    /// absent property, which is not searched for.
    [[nodiscard]] std::shared_ptr<QZTreeNode> nodeWithDataPropertyIdenticalTo(
        const Value& property, PropertySelector withPropertySelector) const;

    // ---- Collecting ----
    //
    // In the same order. A list of data cannot hold an absent one, so where one
    // is met that may not be left out, the result is nothing.

    /// All descendants.
    [[nodiscard]] QZTreeNodes allChildrenRecursively() const;

    /// The data of all descendants; nothing when one of them has no datum.
    [[nodiscard]] std::optional<Array> allChildrenDataRecursively() const;

    /// The property of the data of all descendants. Descendants without a datum
    /// and absent properties are left out.
    [[nodiscard]] Array allChildrenRecursivelyWithPropertySelector(PropertySelector selector) const;

    /// This node if it has a datum, and all descendants, with a datum or not:
    /// callers rely on the descendants being complete.
    [[nodiscard]] QZTreeNodes allNodesWithDataRecursively() const;

    /// The datum of this node if it has one, and those of all descendants;
    /// nothing when a descendant has none.
    [[nodiscard]] std::optional<Array> allNodesDataWithDataRecursively() const;

    /// If this node has a datum, its property, and in any case what
    /// `allChildrenRecursivelyWithPropertySelector` gives; nothing when this
    /// node's datum has no such property.
    [[nodiscard]] std::optional<Array> allNodesWithDataWithPropertySelector(
        PropertySelector selector) const;

    // ---- Lists of nodes ----

    /// The topmost nodes of a selection, each branch once, in the order in which
    /// branches first appear. From each node the way up leads over parents that
    /// are selected, too, and have not been used up; the node reached counts
    /// unless it descends from one that counted before. So of a node and a
    /// selected ancestor with a gap between them both count when the node is
    /// listed first. Selections made by hand depend on that order.
    [[nodiscard]] static QZTreeNodes rootBranchNodesFromNodesInArray(const QZTreeNodes& nodes);

    /// The nodes of the list that descend from no other node of it, in order.
    [[nodiscard]] static QZTreeNodes removeDescendantsFromNodesInArray(const QZTreeNodes& nodes);

    /// A new tree with a node for every descendant of `tree` that is in the
    /// list, below the node of its nearest ancestor in the list, else below a
    /// new root without a datum. The data are shared. `tree` itself is never
    /// among them.
    [[nodiscard]] static std::shared_ptr<QZTreeNode> extractTreeFromTree(
        const std::shared_ptr<QZTreeNode>& tree, const QZTreeNodes& containingNodesInArray);

    /// The data of the nodes, without absent ones.
    [[nodiscard]] static Array dataArrayFromNodes(const QZTreeNodes& nodes);

    // ---- Pruning ----

    /// Removes the children of every node of this tree that is at `level`,
    /// counted from the root of the whole tree. Changes nothing when this node
    /// is deeper.
    void pruneToLevel(std::size_t level);

    /// `pruneToLevel` on `node`.
    static void pruneChildrenOfNode(const std::shared_ptr<QZTreeNode>& node, std::size_t toLevel);

    // ---- Copying ----

    /// A deep copy without parent, of nodes of the same classes with copies of
    /// the data (`copyOf`). A datum that is a node itself is copied with its
    /// tree, once, however many nodes have it as theirs.
    [[nodiscard]] std::shared_ptr<QZTreeNode> copyWithZone() const;

    /// The same copy.
    [[nodiscard]] std::shared_ptr<const Object> copiedObject() const override {
        return copyWithZone();
    }

    // ---- Archiving ----
    //
    // By the functions of archive.h: `archivedClass<QZTreeNode>(u"QZTreeNode")`
    // stands among the classes. Parents are not archived.

    /// In a keyed archive, "Data" is the datum, if there is one, and "Children"
    /// the array of the children. In a sequential one the datum and then the
    /// array are encoded. Stored in documents.
    void encodeWithCoder(ArchiveEncoder& coder) const;

    /// A node as it was encoded; empty when something in it cannot be read or
    /// is no node. The parents of the children are restored.
    ///
    /// A node that was archived without "Children" has no list of children at
    /// all, which is not an empty one: children that are added to it are
    /// dropped, silently, until `setChildren` gives it a list.
    [[nodiscard]] static std::shared_ptr<QZTreeNode> initWithCoder(ArchiveDecoder& coder);

    QZTreeNode(const QZTreeNode&) = delete;
    QZTreeNode& operator=(const QZTreeNode&) = delete;

protected:
    /// A node without parent, datum and children, for derived classes. Nodes
    /// that no `std::shared_ptr` owns are nobody's parent.
    QZTreeNode() = default;

    /// A new node of the object's own class without parent, datum and children.
    /// A derived class makes one of its own, with copies of its own fields.
    [[nodiscard]] virtual std::shared_ptr<QZTreeNode> newNode() const;

    /// Takes datum and children from an archive; for the `initWithCoder` of a
    /// derived class. False when something in it cannot be read.
    [[nodiscard]] bool readFromCoder(ArchiveDecoder& coder);

private:
    class Copier;

    [[nodiscard]] std::shared_ptr<QZTreeNode> shared() const;
    [[nodiscard]] static std::size_t maxLevelUnderNode(const QZTreeNode& node,
                                                       std::size_t withCurrentLevel);
    void addChildrenToArray(QZTreeNodes& array) const;
    [[nodiscard]] bool addChildrenDataToArray(Array& array) const;
    void addChildrenPropertyToArray(Array& array, PropertySelector withPropertySelector) const;

    class ChildIndex;

    struct ChildList {
        QZTreeNodes nodes;
        // Only a node read from an archive without children has no list. It
        // takes none up until it is given a list as a whole.
        bool isMissing = false;
        // Where the nodes are, once looking for them has proved worth it. Gone
        // as soon as the list changes.
        std::unique_ptr<ChildIndex> index;
        std::size_t lookedAt = 0;

        ChildList();
        ~ChildList();
        ChildList(const ChildList&) = delete;
        ChildList& operator=(const ChildList&) = delete;
        [[nodiscard]] std::size_t indexOf(const QZTreeNode* node);
    };

    [[nodiscard]] static const QZTreeNodes& noChildren();
    [[nodiscard]] bool hasList() const { return list_ == nullptr || !list_->isMissing; }
    [[nodiscard]] QZTreeNodes& changeableChildren();
    void replaceList(QZTreeNodes nodes);

    std::weak_ptr<QZTreeNode> parent_;
    std::unique_ptr<ChildList> list_;  // most nodes are leaves and go without
    Value data_;
};

}  // namespace QZCore
