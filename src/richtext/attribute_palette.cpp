#include "richtext/attribute_palette.h"

namespace QZCore {

std::uint32_t AttributePalette::idOf(const TextAttributes& attributes) {
    if (last_ < entries_.size() && entries_[last_] == attributes) return last_;
    const auto [at, isNew] = ids_.try_emplace(attributes, 0);
    if (isNew) {
        ++added_;
        if (free_.empty()) {
            at->second = static_cast<std::uint32_t>(entries_.size());
            entries_.push_back(attributes);
        } else {
            at->second = free_.back();
            free_.pop_back();
            entries_[at->second] = attributes;
        }
    }
    last_ = at->second;
    return last_;
}

void AttributePalette::keepOnly(const std::vector<bool>& used) {
    for (auto at = ids_.begin(); at != ids_.end();) {
        const std::uint32_t id = at->second;
        if (used[id]) {
            ++at;
            continue;
        }
        at = ids_.erase(at);
        entries_[id] = TextAttributes();
        free_.push_back(id);
    }
    added_ = 0;
    last_ = kNone;
}

}  // namespace QZCore
