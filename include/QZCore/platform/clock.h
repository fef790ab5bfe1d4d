// Clocks: the monotonic one, by which the library measures how long things
// take, and the one on the wall, which says when "now" is.
//
// Every operation may be called from any thread.
#pragma once

#include <cstdint>
#include <memory>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

/// A clock that only goes forward. Its readings have nothing to do with the
/// time of day.
class QZ_EXPORT MonotonicClock {
public:
    virtual ~MonotonicClock();

    /// The nanoseconds that the machine has been awake since it started: time
    /// that it sleeps does not count.
    [[nodiscard]] virtual std::uint64_t nanoseconds() const = 0;
};

/// The clock that the library uses: the system's, unless the application or a
/// test has set another.
[[nodiscard]] QZ_EXPORT std::shared_ptr<const MonotonicClock> sharedMonotonicClock();

/// Makes `clock` the one that the library uses and returns the one set before.
/// An empty pointer stands for the default, in both directions.
QZ_EXPORT std::shared_ptr<const MonotonicClock> setSharedMonotonicClock(
    std::shared_ptr<const MonotonicClock> clock);

/// A clock that tells the date.
class QZ_EXPORT WallClock {
public:
    virtual ~WallClock();

    /// What "now" is.
    [[nodiscard]] virtual Date now() const = 0;
};

/// The clock that "now" and "today" come from: the system's, unless the
/// application or a test has set another.
[[nodiscard]] QZ_EXPORT std::shared_ptr<const WallClock> sharedWallClock();

/// Makes `clock` the one that the library uses and returns the one set before.
/// An empty pointer stands for the default, in both directions.
QZ_EXPORT std::shared_ptr<const WallClock> setSharedWallClock(
    std::shared_ptr<const WallClock> clock);

}  // namespace QZCore
