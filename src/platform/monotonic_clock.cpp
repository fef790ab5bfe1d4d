#include <time.h>

#include "QZCore/platform/clock.h"
#include "platform/shared_service.h"

namespace QZCore {
namespace {

/// Of the system's monotonic clocks the one that stands still while the machine
/// sleeps; CLOCK_BOOTTIME goes on.
class SystemClock final : public MonotonicClock {
public:
    [[nodiscard]] std::uint64_t nanoseconds() const override {
        constexpr std::uint64_t kPerSecond = 1'000'000'000;
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        return static_cast<std::uint64_t>(now.tv_sec) * kPerSecond +
               static_cast<std::uint64_t>(now.tv_nsec);
    }
};

SharedService<const MonotonicClock>& sharedClock() {
    static auto& service =
        *new SharedService<const MonotonicClock>(std::make_shared<SystemClock>());
    return service;
}

}  // namespace

MonotonicClock::~MonotonicClock() = default;

std::shared_ptr<const MonotonicClock> sharedMonotonicClock() { return sharedClock().current(); }

std::shared_ptr<const MonotonicClock> setSharedMonotonicClock(
    std::shared_ptr<const MonotonicClock> clock) {
    return sharedClock().replaceBy(std::move(clock));
}

}  // namespace QZCore
