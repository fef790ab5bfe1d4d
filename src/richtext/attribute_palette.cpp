#include "richtext/attribute_palette.h"

namespace QZCore {

std::uint32_t AttributePalette::idOf(const TextAttributes& attributes) {
    if (last_ < entries_.size() && entries_[last_] == attributes) return last_;
    const std::size_t inUse = entries_.size() - free_.size();
    if ((inUse + 1) * 2 > slots_.size()) growSlots();
    std::uint32_t& slot = slots_[slotOf(attributes)];
    if (slot == kNone) slot = add(attributes);
    last_ = slot;
    return last_;
}

void AttributePalette::keepOnly(const std::vector<bool>& used) {
    std::vector<std::uint32_t> old(slots_.size(), kNone);
    old.swap(slots_);
    for (const std::uint32_t id : old) {
        if (id == kNone) continue;
        if (used[id]) {
            slots_[slotOf(entries_[id])] = id;
        } else {
            entries_[id] = TextAttributes();
            free_.push_back(id);
        }
    }
    added_ = 0;
    last_ = kNone;
}

/// The slot that holds the number of `attributes`, or the free one where it
/// belongs.
std::size_t AttributePalette::slotOf(const TextAttributes& attributes) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = (attributes.hash() * std::size_t{0x9E3779B97F4A7C15ULL} >> 32) & mask;
    while (slots_[slot] != kNone && !(entries_[slots_[slot]] == attributes)) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

std::uint32_t AttributePalette::add(const TextAttributes& attributes) {
    ++added_;
    if (free_.empty()) {
        entries_.push_back(attributes);
        return static_cast<std::uint32_t>(entries_.size() - 1);
    }
    const std::uint32_t id = free_.back();
    free_.pop_back();
    entries_[id] = attributes;
    return id;
}

void AttributePalette::growSlots() {
    std::vector<std::uint32_t> old(slots_.empty() ? 16 : slots_.size() * 2, kNone);
    old.swap(slots_);
    for (const std::uint32_t id : old) {
        if (id != kNone) slots_[slotOf(entries_[id])] = id;
    }
}

}  // namespace QZCore
