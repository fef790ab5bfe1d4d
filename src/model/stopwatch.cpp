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
    return static_cast<double>(static_cast<std::int64_t>(end - startTime_)) / kNanosecondsPerSecond;
}

double QZStopwatchBlock(void (*block)()) {
    return QZStopwatchBlock([block] {
        if (block != nullptr) block();
    });
}

}  // namespace QZCore
