// A clock that goes when the test says so.
#pragma once

#include <memory>

#include "QZCore/platform/clock.h"

namespace QZCore::testing {

/// The shared monotonic clock while this lives.
class HandClock {
public:
    HandClock() : before_(setSharedMonotonicClock(clock_)) {}
    ~HandClock() { setSharedMonotonicClock(before_); }
    HandClock(const HandClock&) = delete;
    HandClock& operator=(const HandClock&) = delete;

    /// Sets the hands.
    void show(std::uint64_t nanoseconds) { clock_->shown = nanoseconds; }

private:
    struct Clock final : MonotonicClock {
        [[nodiscard]] std::uint64_t nanoseconds() const override { return shown; }
        std::uint64_t shown = 0;
    };

    std::shared_ptr<Clock> clock_ = std::make_shared<Clock>();
    std::shared_ptr<const MonotonicClock> before_;
};

}  // namespace QZCore::testing
