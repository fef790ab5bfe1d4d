#include "QZCore/model/stopwatch.h"

#include "support/hand_clock.h"
#include "support/printing.h"

namespace QZCore {
namespace {

using testing::HandClock;

HandClock* blockClock = nullptr;
void threeSeconds() { blockClock->show(10'000'000'000); }

}  // namespace

TEST_CASE("a stopwatch shows the time from start to stop") {
    HandClock clock;
    clock.show(5'000'000'000);
    QZStopwatch watch = QZStopwatch::stopwatch();
    CHECK(watch.startTime() == 0);
    CHECK(watch.stopTime() == 0);
    CHECK(watch.seconds() == 5.0);  // never started: the clock itself

    watch.start();
    CHECK(watch.startTime() == 5'000'000'000);
    clock.show(5'250'000'000);
    CHECK(watch.seconds() == 0.25);
    watch.stop();
    CHECK(watch.stopTime() == 5'250'000'000);
    clock.show(9'000'000'000);
    CHECK(watch.seconds() == 0.25);
    watch.stop();
    CHECK(watch.seconds() == 4.0);
    watch.start();
    CHECK(watch.stopTime() == 0);
    CHECK(watch.seconds() == 0.0);
}

TEST_CASE("seconds is the difference of whatever readings are set") {
    HandClock clock;
    clock.show(7'000'000'000);
    const auto secondsBetween = [](std::uint64_t start, std::uint64_t stop) {
        QZStopwatch watch;
        watch.setStartTime(start);
        watch.setStopTime(stop);
        return watch.seconds();
    };
    CHECK(secondsBetween(6'000'000'000, 0) == 1.0);  // stop 0 is now
    CHECK(secondsBetween(8'000'000'000, 0) == -1.0);
    CHECK(secondsBetween(2'000'000'000, 1'000'000'000) == -1.0);
    CHECK(secondsBetween(1ULL << 60, (1ULL << 60) + 1) == 1e-9);  // beyond 2^53
    CHECK(secondsBetween(0, UINT64_MAX) == 18446744073.709551616);
}

TEST_CASE("a timestamp is in nanoseconds, the time of a block in seconds") {
    HandClock clock;
    clock.show(7'000'000'000);
    CHECK(QZStopwatch::timestamp() == 7e9);
    CHECK(QZStopwatchBlock([&clock] { clock.show(8'500'000'000); }) == 1.5);
    clock.show(7'000'000'000);
    blockClock = &clock;
    CHECK(QZStopwatchBlock(&threeSeconds) == 3.0);
    CHECK(QZStopwatchBlock(static_cast<void (*)()>(nullptr)) == 0.0);
}

TEST_CASE("the system's clock goes on") {
    QZStopwatch watch;
    watch.start();
    while (watch.seconds() == 0.0) continue;
    CHECK(watch.seconds() > 0.0);
}

}  // namespace QZCore
