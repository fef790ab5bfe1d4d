// Things by identity.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "foundation/hash.h"

namespace QZCore {

/// Numbers for things, found by their addresses. Open addressing, at most half
/// full.
class IdentityTable {
public:
    /// The number of a thing that is not in the table.
    static constexpr std::uint32_t kNone = UINT32_MAX;

    IdentityTable() : slots_(kFewestSlots) {}
    /// What the pointers of a list point to, without empty ones.
    template <class Pointers>
    explicit IdentityTable(const Pointers& list) : IdentityTable() {
        for (const auto& pointer : list) {
            if (pointer != nullptr) add(pointer.get());
        }
    }

    /// Adds `thing` with the number; false, and no change, when it is there.
    bool add(const void* thing, std::uint32_t number) {
        Slot& slot = slots_[slotOf(thing)];
        if (slot.thing != nullptr) return false;
        slot = {thing, number};
        if (++count_ * std::size_t{2} > slots_.size()) grow();
        return true;
    }

    /// Adds `thing` with the number of those that came before it.
    bool add(const void* thing) { return add(thing, count_); }

    /// The number of `thing`, or `kNone`.
    [[nodiscard]] std::uint32_t find(const void* thing) const {
        return slots_[slotOf(thing)].number;
    }

    /// Whether `thing` is there.
    [[nodiscard]] bool contains(const void* thing) const { return find(thing) != kNone; }

    /// The number of things.
    [[nodiscard]] std::uint32_t count() const { return count_; }

private:
    static constexpr std::size_t kFewestSlots = 16;

    struct Slot {
        const void* thing = nullptr;
        std::uint32_t number = kNone;
    };

    /// The slot that holds `thing`, or the free one where it belongs.
    [[nodiscard]] std::size_t slotOf(const void* thing) const {
        const std::size_t mask = slots_.size() - 1;
        std::size_t at = hashCombine(0, reinterpret_cast<std::uintptr_t>(thing)) & mask;
        while (slots_[at].thing != nullptr && slots_[at].thing != thing) at = (at + 1) & mask;
        return at;
    }

    void grow() {
        const std::vector<Slot> before =
            std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
        for (const Slot& slot : before) {
            if (slot.thing != nullptr) slots_[slotOf(slot.thing)] = slot;
        }
    }

    std::vector<Slot> slots_;
    std::uint32_t count_ = 0;
};

}  // namespace QZCore
