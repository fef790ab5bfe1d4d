// Lets go of what model objects own, however deeply they own each other.
#pragma once

#include <utility>
#include <vector>

namespace QZCore {

/// Objects that own objects would release each other by recursion. Instead an
/// object that goes away hands what it owns to the outermost release of the
/// thread, which lets go of one thing after the other.
template <class Owned>
class Release {
public:
    /// Destroys `owned`, now or as soon as the release under way gets to it.
    static void later(Owned&& owned) {
        if (current_ != nullptr) {
            current_->pending_.push_back(std::move(owned));
            return;
        }
        Release outermost;
        current_ = &outermost;
        outermost.pending_.push_back(std::move(owned));
        while (!outermost.pending_.empty()) {
            const Owned destroyedHere = std::move(outermost.pending_.back());
            outermost.pending_.pop_back();
        }
        current_ = nullptr;
    }

private:
    static inline thread_local Release* current_ = nullptr;
    std::vector<Owned> pending_;
};

}  // namespace QZCore
