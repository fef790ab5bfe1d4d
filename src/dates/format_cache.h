// A small store of what is costly to make, by the rules that it was made from.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace QZCore {

/// Keeps the last few formats in use, the latest first, unless the texts in
/// their rules are long. Any thread may ask.
template <class Rules, class Format>
class FormatCache {
public:
    /// The format that `make(rules)` gives, now or earlier; null where it gives
    /// none.
    template <class Make>
    [[nodiscard]] std::shared_ptr<const Format> formatFor(const Rules& rules, Make make) {
        if (rules.textLength() > kLongestText) return make(rules);
        if (auto known = find(rules)) return known;
        std::shared_ptr<const Format> made = make(rules);
        if (made == nullptr) return nullptr;
        const std::lock_guard lock(mutex_);
        if (entries_.size() == kMostFormats) entries_.pop_back();
        entries_.insert(entries_.begin(), Entry{rules, made});
        return made;
    }

private:
    static constexpr std::size_t kMostFormats = 32;
    static constexpr std::size_t kLongestText = 1000;

    struct Entry {
        Rules rules;
        std::shared_ptr<const Format> format;
    };

    [[nodiscard]] std::shared_ptr<const Format> find(const Rules& rules) {
        const std::lock_guard lock(mutex_);
        const auto found = std::find_if(entries_.begin(), entries_.end(),
                                        [&](const Entry& entry) { return entry.rules == rules; });
        if (found == entries_.end()) return nullptr;
        std::rotate(entries_.begin(), found, found + 1);
        return entries_.front().format;
    }

    std::mutex mutex_;
    std::vector<Entry> entries_;
};

}  // namespace QZCore
