// Searching and collecting.

#include "QZCore/model/tree_node.h"
#include "model/tree_walk.h"

namespace QZCore {
namespace {

/// The first node of the tree for which `matches` says so, or null.
template <class Matches>
const QZTreeNode* firstNode(const QZTreeNode& root, Matches matches) {
    TreeWalk walk(root);
    while (const QZTreeNode* node = walk.next()) {
        if (matches(*node)) return node;
    }
    return nullptr;
}

/// Calls `body` with every descendant until it answers false; returns whether
/// it never did.
template <class Body>
bool forEachDescendant(const QZTreeNode& root, Body body) {
    TreeWalk walk(root);
    walk.next();
    while (const QZTreeNode* node = walk.next()) {
        if (!body(*node)) return false;
    }
    return true;
}

}  // namespace

// ---- Searching ----

std::shared_ptr<QZTreeNode> QZTreeNode::nodeWithData(const Value& data) const {
    if (data.isAbsent()) return nullptr;
    const auto* found =
        firstNode(*this, [&data](const QZTreeNode& node) { return node.data() == data; });
    return found == nullptr ? nullptr : found->shared();
}

std::shared_ptr<QZTreeNode> QZTreeNode::nodeWithDataIdenticalTo(const Value& data) const {
    const auto* found =
        firstNode(*this, [&data](const QZTreeNode& node) { return node.data().isIdentical(data); });
    return found == nullptr ? nullptr : found->shared();
}

std::shared_ptr<QZTreeNode> QZTreeNode::nodeWithDataProperty(
    const Value& property, PropertySelector withPropertySelector) const {
    if (property.isAbsent()) return nullptr;
    const auto* found = firstNode(*this, [&](const QZTreeNode& node) {
        return !node.data().isAbsent() && withPropertySelector(node.data()) == property;
    });
    return found == nullptr ? nullptr : found->shared();
}

std::shared_ptr<QZTreeNode> QZTreeNode::nodeWithDataPropertyIdenticalTo(
    const Value& property, PropertySelector withPropertySelector) const {
    if (property.isAbsent()) return nullptr;
    const auto* found = firstNode(*this, [&](const QZTreeNode& node) {
        return !node.data().isAbsent() && withPropertySelector(node.data()).isIdentical(property);
    });
    return found == nullptr ? nullptr : found->shared();
}

// ---- Collecting ----

void QZTreeNode::addChildrenToArray(QZTreeNodes& array) const {
    forEachDescendant(*this, [&array](const QZTreeNode& node) {
        array.push_back(node.shared());
        return true;
    });
}

bool QZTreeNode::addChildrenDataToArray(Array& array) const {
    return forEachDescendant(*this, [&array](const QZTreeNode& node) {
        array.push_back(node.data());
        return !node.data().isAbsent();
    });
}

void QZTreeNode::addChildrenPropertyToArray(Array& array,
                                            PropertySelector withPropertySelector) const {
    forEachDescendant(*this, [&array, withPropertySelector](const QZTreeNode& node) {
        if (node.data().isAbsent()) return true;
        Value property = withPropertySelector(node.data());
        if (!property.isAbsent()) array.push_back(std::move(property));
        return true;
    });
}

QZTreeNodes QZTreeNode::allChildrenRecursively() const {
    QZTreeNodes nodes;
    addChildrenToArray(nodes);
    return nodes;
}

std::optional<Array> QZTreeNode::allChildrenDataRecursively() const {
    Array data;
    if (!addChildrenDataToArray(data)) return std::nullopt;
    return data;
}

Array QZTreeNode::allChildrenRecursivelyWithPropertySelector(PropertySelector selector) const {
    Array properties;
    addChildrenPropertyToArray(properties, selector);
    return properties;
}

QZTreeNodes QZTreeNode::allNodesWithDataRecursively() const {
    QZTreeNodes nodes;
    if (!data_.isAbsent()) nodes.push_back(shared());
    addChildrenToArray(nodes);
    return nodes;
}

std::optional<Array> QZTreeNode::allNodesDataWithDataRecursively() const {
    Array data;
    if (!data_.isAbsent()) data.push_back(data_);
    if (!addChildrenDataToArray(data)) return std::nullopt;
    return data;
}

std::optional<Array> QZTreeNode::allNodesWithDataWithPropertySelector(
    PropertySelector selector) const {
    Array properties;
    if (!data_.isAbsent()) {
        properties.push_back(selector(data_));
        if (properties.front().isAbsent()) return std::nullopt;
    }
    addChildrenPropertyToArray(properties, selector);
    return properties;
}

}  // namespace QZCore
