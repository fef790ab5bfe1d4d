// A result that is worked out once and kept.
#pragma once

#include <atomic>
#include <memory>

namespace QZCore {

/// What was found about something that does not change, until it is forgotten.
/// Different threads may ask at once; all of them get the same object.
template <class T>
class Kept {
public:
    Kept() = default;
    ~Kept() { forget(); }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

    /// The result, or null when nobody has asked for it yet.
    [[nodiscard]] const T* known() const { return value_.load(std::memory_order_acquire); }

    /// The result, which `find` gives when it is not known.
    template <class Find>
    [[nodiscard]] const T& get(Find find) const {
        if (const T* found = known()) return *found;
        auto found = std::make_unique<const T>(find());
        const T* first = nullptr;
        // Another thread may have been faster; both found the same.
        if (!value_.compare_exchange_strong(first, found.get(), std::memory_order_acq_rel)) {
            return *first;
        }
        return *found.release();
    }

    /// For the only owner, who is about to change what the result is about.
    void forget() {
        if (known() != nullptr) delete value_.exchange(nullptr, std::memory_order_acq_rel);
    }

private:
    mutable std::atomic<const T*> value_{nullptr};
};

}  // namespace QZCore
