#include "QZCore/model/stopwatch.h"

#include "QZCore/platform/clock.h"

namespace QZCore {
namespace {

std::uint64_t now() { return sharedMonotonicClock()->nanoseconds(); }

}  // namespace

double QZStopwatch::timestamp() { return static_cast<double>(now()); }

void QZStopwatch::start() {
    stopTime_ = 0;
    startTime_ = now();
}

void QZStopwatch::stop() { stopTime_ = now(); }

double QZStopwatch::seconds() const {
    constexpr double kNanosecondsPerSecond = 1'000'000'000;
    const std::uint64_t end = stopTime_ == 0 ? now() : stopTime_;
    const double nanoseconds = end < startTime_ ? -static_cast<double>(startTime_ - end)
                                                : static_cast<double>(end - startTime_);
    return nanoseconds / kNanosecondsPerSecond;
}

double QZStopwatchBlock(void (*block)()) {
    return QZStopwatchBlock([block] {
        if (block != nullptr) block();
    });
}

}  // namespace QZCore
