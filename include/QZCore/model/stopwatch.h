// A stopwatch on the monotonic clock of platform/clock.h, which stands still
// while the machine sleeps.
//
// A stopwatch is a value: copies go on independently. Different threads may
// use different stopwatches.
#pragma once

#include <cstdint>

#include "QZCore/export.h"

namespace QZCore {

/// Two readings of the clock, in nanoseconds, and the time between them.
class QZ_EXPORT QZStopwatch {
public:
    // ---- Measuring ----

    /// A stopwatch with both readings 0. Until it is started, it shows the
    /// clock itself.
    [[nodiscard]] static QZStopwatch stopwatch() { return {}; }

    /// The clock's current reading in nanoseconds, unlike `seconds`. Callers
    /// that show differences of it divide themselves.
    [[nodiscard]] static double timestamp();

    /// Measures from now on; what was measured before is forgotten.
    void start();

    /// Ends the measurement. Stopping again moves the end to now.
    void stop();

    /// The seconds from start to stop, or to now while the stopwatch runs.
    /// Negative when the start was set to after the end.
    [[nodiscard]] double seconds() const;

    // ---- The readings ----

    /// The reading at the start.
    [[nodiscard]] std::uint64_t startTime() const { return startTime_; }
    /// Sets the reading at the start.
    void setStartTime(std::uint64_t nanoseconds) { startTime_ = nanoseconds; }
    /// The reading at the stop; 0 while the stopwatch runs.
    [[nodiscard]] std::uint64_t stopTime() const { return stopTime_; }
    /// Sets the reading at the stop; 0 lets the stopwatch run.
    void setStopTime(std::uint64_t nanoseconds) { stopTime_ = nanoseconds; }

private:
    std::uint64_t startTime_ = 0;
    std::uint64_t stopTime_ = 0;
};

/// Runs `block` and returns the seconds that it took. A null pointer is not
/// run. Has C linkage.
extern "C" QZ_EXPORT double QZStopwatchBlock(void (*block)());

/// Runs `block`, anything that can be called without arguments, and returns the
/// seconds that it took.
template <class Block>
double QZStopwatchBlock(Block&& block) {
    QZStopwatch watch;
    watch.start();
    block();
    watch.stop();
    return watch.seconds();
}

}  // namespace QZCore
