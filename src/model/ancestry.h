// How the nodes of a list descend from each other.
#pragma once

#include <cstdint>
#include <vector>

#include "QZCore/model/tree_node.h"
#include "model/identity_table.h"

namespace QZCore {

/// The different nodes of a list and all their ancestors, each met once and
/// numbered. Takes time linear in their number.
class Ancestry {
public:
    /// Stands for the number of a parent where there is none.
    static constexpr std::uint32_t kNone = IdentityTable::kNone;

    explicit Ancestry(const QZTreeNodes& nodes);

    /// The number of a node of the list.
    [[nodiscard]] std::uint32_t numberOf(const QZTreeNode* node) const { return table_.find(node); }

    /// The number of the parent of a numbered node.
    [[nodiscard]] std::uint32_t parentOf(std::uint32_t number) const { return parents_[number]; }

    /// All numbers, those of parents before those of their children.
    [[nodiscard]] const std::vector<std::uint32_t>& topDown() const { return topDown_; }

    /// The number of nodes.
    [[nodiscard]] std::uint32_t count() const { return table_.count(); }

private:
    void climbFrom(const QZTreeNode* node);

    IdentityTable table_;
    std::vector<std::uint32_t> parents_;
    std::vector<std::uint32_t> topDown_;
};

}  // namespace QZCore
