#include <time.h>

#include "QZCore/platform/clock.h"
#include "platform/shared_service.h"

namespace QZCore {
namespace {

class SystemWallClock final : public WallClock {
public:
    [[nodiscard]] Date now() const override {
        timespec now{};
        clock_gettime(CLOCK_REALTIME, &now);
        return {static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9};
    }
};

SharedService<const WallClock>& sharedClock() {
    static auto& service = *new SharedService<const WallClock>(std::make_shared<SystemWallClock>());
    return service;
}

}  // namespace

WallClock::~WallClock() = default;

std::shared_ptr<const WallClock> sharedWallClock() { return sharedClock().current(); }

std::shared_ptr<const WallClock> setSharedWallClock(std::shared_ptr<const WallClock> clock) {
    return sharedClock().replaceBy(std::move(clock));
}

}  // namespace QZCore
