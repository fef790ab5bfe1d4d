// Nodes by identity.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "QZCore/model/tree_node.h"
#include "foundation/hash.h"

namespace QZCore {

/// Numbers nodes in the order in which they are added, from 0 on, and finds
/// their numbers. Open addressing, at most half full.
class NodeTable {
public:
    /// The number of a node that is not in the table.
    static constexpr std::uint32_t kNone = UINT32_MAX;

    NodeTable() : slots_(kFewestSlots) {}
    /// The nodes of a list.
    explicit NodeTable(const QZTreeNodes& nodes) : NodeTable() {
        for (const auto& node : nodes) {
            if (node != nullptr) add(node.get());
        }
    }

    /// Adds `node`; false when it was there.
    bool add(const QZTreeNode* node) {
        Slot& slot = slots_[slotOf(node)];
        if (slot.node != nullptr) return false;
        slot = {node, count_++};
        if (count_ * std::size_t{2} > slots_.size()) grow();
        return true;
    }

    /// The number of `node`, or `kNone`.
    [[nodiscard]] std::uint32_t find(const QZTreeNode* node) const {
        return slots_[slotOf(node)].number;
    }

    /// Whether `node` is there.
    [[nodiscard]] bool contains(const QZTreeNode* node) const { return find(node) != kNone; }

    /// The number of nodes.
    [[nodiscard]] std::uint32_t count() const { return count_; }

private:
    static constexpr std::size_t kFewestSlots = 16;

    struct Slot {
        const QZTreeNode* node = nullptr;
        std::uint32_t number = kNone;
    };

    /// The slot that holds `node`, or the free one where it belongs.
    [[nodiscard]] std::size_t slotOf(const QZTreeNode* node) const {
        const std::size_t mask = slots_.size() - 1;
        std::size_t at = hashCombine(0, reinterpret_cast<std::uintptr_t>(node)) & mask;
        while (slots_[at].node != nullptr && slots_[at].node != node) at = (at + 1) & mask;
        return at;
    }

    void grow() {
        const std::vector<Slot> before =
            std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
        for (const Slot& slot : before) {
            if (slot.node != nullptr) slots_[slotOf(slot.node)] = slot;
        }
    }

    std::vector<Slot> slots_;
    std::uint32_t count_ = 0;
};

}  // namespace QZCore
