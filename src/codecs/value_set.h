// A hashed set of the values of an array, by identity or by equality.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "QZCore/foundation/value.h"

namespace QZCore {

/// Identity, as a hash and a comparison.
struct ByIdentity {
    static std::size_t hash(const Value& value) { return value.identityHash(); }
    static bool same(const Value& a, const Value& b) { return a.isIdentical(b); }
};

/// Equality, as a hash and a comparison.
struct ByEquality {
    static std::size_t hash(const Value& value) { return value.hash(); }
    static bool same(const Value& a, const Value& b) { return a == b; }
};

/// The different values of an array, which must neither change nor go away
/// meanwhile.
template <class Sameness>
class ValueSet {
public:
    explicit ValueSet(const Array& values)
        : values_(values), slots_(std::bit_ceil(values.size() * 2 + 1)) {
        for (std::size_t i = 0; i < values.size(); ++i) add(i);
    }

    [[nodiscard]] bool contains(const Value& value) const {
        return slotOf(value, hashOf(value)).position != 0;
    }

    /// How many values are in the set and were not ticked off.
    [[nodiscard]] std::size_t left() const { return left_; }

    /// Ticks the value off; returns whether it was in the set and was not.
    bool tickOff(const Value& value) {
        Slot& slot = slotOf(value, hashOf(value));
        if (slot.position == 0 || slot.isTickedOff) return false;
        slot.isTickedOff = true;
        --left_;
        return true;
    }

private:
    // A free slot has position 0, the first value position 1.
    struct Slot {
        std::uint32_t hash = 0;
        bool isTickedOff = false;
        std::size_t position = 0;
    };

    static std::uint32_t hashOf(const Value& value) {
        return static_cast<std::uint32_t>(Sameness::hash(value));
    }

    void add(std::size_t index) {
        const std::uint32_t hash = hashOf(values_[index]);
        Slot& slot = slotOf(values_[index], hash);
        if (slot.position != 0) return;
        slot = {hash, false, index + 1};
        ++left_;
    }

    /// Where the value is, or the free slot where it would be. At most half of
    /// the slots are taken.
    [[nodiscard]] const Slot& slotOf(const Value& value, std::uint32_t hash) const {
        const std::size_t mask = slots_.size() - 1;
        for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
            const Slot& slot = slots_[at];
            if (slot.position == 0) return slot;
            if (slot.hash == hash && Sameness::same(values_[slot.position - 1], value)) return slot;
        }
    }

    [[nodiscard]] Slot& slotOf(const Value& value, std::uint32_t hash) {
        return const_cast<Slot&>(std::as_const(*this).slotOf(value, hash));
    }

    const Array& values_;
    std::vector<Slot> slots_;
    std::size_t left_ = 0;
};

}  // namespace QZCore
