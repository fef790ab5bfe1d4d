// Trees as texts, and nodes by name.
#pragma once

#include <random>

#include "QZCore/model/tree_node.h"

namespace QZCore::testing {

using NodeRef = std::shared_ptr<QZTreeNode>;

/// The tree that a text such as "a(b(d) c)" names: every node is one letter,
/// which is its datum; "-" has none.
inline NodeRef treeOf(StringView text) {
    NodeRef root;
    QZTreeNodes path;
    NodeRef last;
    for (const char16_t unit : text) {
        if (unit == u'(') path.push_back(last);
        if (unit == u')') path.pop_back();
        if (unit == u'(' || unit == u')' || unit == u' ') continue;
        last = QZTreeNode::treeNodeWithData(unit == u'-' ? Value() : Value(StringView(&unit, 1)));
        if (path.empty()) root = last;
        if (!path.empty()) path.back()->addChild(last);
    }
    return root;
}

/// The text of a tree; what an empty pointer has is "none".
inline String textOf(const NodeRef& node) {
    if (node == nullptr) return u"none";
    String text = node->data().isAbsent() ? u"-" : node->data().stringValue();
    char16_t separator = u'(';
    for (const auto& child : node->children()) {
        text += separator + textOf(child);
        separator = u' ';
    }
    return node->hasChildren() ? text + u")" : text;
}

/// The node of a tree with the name.
inline NodeRef named(const NodeRef& root, StringView name) { return root->nodeWithData(name); }

/// The nodes of a tree with the names of one letter.
inline QZTreeNodes allNamed(const NodeRef& root, StringView names) {
    QZTreeNodes nodes;
    for (const char16_t& unit : names) nodes.push_back(named(root, StringView(&unit, 1)));
    return nodes;
}

/// The names of nodes, one after the other.
inline String namesOf(const QZTreeNodes& nodes) {
    String names;
    for (const auto& node : nodes) names += node->data().isAbsent() ? u"-" : *node->data().string();
    return names;
}

/// The law of every tree whose nodes know their parents: its children are
/// linked to it, at every level.
inline bool isLinked(const NodeRef& root) {
    for (const auto& node : root->allChildrenRecursively()) {
        const auto parent = node->parent();
        if (parent == nullptr || parent->indexOfChildIdenticalTo(node) == kNotFound) return false;
    }
    return true;
}

/// `count` nodes, numbered, each but the first a child of an earlier one: near
/// `reach` 1 a chain, with a large one a bush.
inline QZTreeNodes randomTree(std::mt19937& random, std::size_t count, std::size_t reach) {
    QZTreeNodes nodes;
    for (std::size_t i = 0; i < count; ++i) {
        nodes.push_back(QZTreeNode::treeNodeWithData(i));
        if (i > 0) nodes[i - 1 - random() % std::min(i, reach)]->addChild(nodes[i]);
    }
    return nodes;
}

}  // namespace QZCore::testing
