// A map between the small numbers of attribute sets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace QZCore {

/// Remembers what numbers were mapped to, so that each is mapped once. Costs
/// what is put in, however large the numbers are.
class NumberMap {
public:
    /// What `from` is mapped to: as before, or else what `make(from)` gives.
    template <class Make>
    std::uint32_t operator()(std::uint32_t from, Make make) {
        if (from == last_.from) return last_.to;
        std::uint32_t to = find(from);
        if (to == kNone) {
            to = make(from);
            if (last_.from != kNone) {
                if (slots_.empty()) remember(last_);
                remember({from, to});
            }
        }
        last_ = {from, to};
        return last_.to;
    }

private:
    static constexpr std::uint32_t kNone = UINT32_MAX;

    struct Pair {
        std::uint32_t from = kNone;
        std::uint32_t to = kNone;
    };

    [[nodiscard]] std::size_t slotOf(std::uint32_t from) const {
        const std::size_t mask = slots_.size() - 1;
        std::size_t slot = (from * std::size_t{0x9E3779B97F4A7C15ULL} >> 32) & mask;
        while (slots_[slot].from != from && slots_[slot].from != kNone) slot = (slot + 1) & mask;
        return slot;
    }

    [[nodiscard]] std::uint32_t find(std::uint32_t from) const {
        return slots_.empty() ? kNone : slots_[slotOf(from)].to;
    }

    void remember(Pair pair) {
        if (count_ * 2 >= slots_.size()) grow();
        Pair& slot = slots_[slotOf(pair.from)];
        count_ += slot.from == kNone ? 1 : 0;
        slot = pair;
    }

    void grow() {
        std::vector<Pair> old(slots_.empty() ? 8 : slots_.size() * 2);
        old.swap(slots_);
        for (const Pair& pair : old) {
            if (pair.from != kNone) slots_[slotOf(pair.from)] = pair;
        }
    }

    // The pair of the last question. A map of one pair needs no table.
    Pair last_;
    std::vector<Pair> slots_;
    std::size_t count_ = 0;
};

}  // namespace QZCore
