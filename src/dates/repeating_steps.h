// What repeats on the calendar, so that long walks need not be taken.
#pragma once

#include <cstdint>

#include "dates/local_time.h"
#include "foundation/civil_date.h"

namespace QZCore {

inline constexpr std::int64_t kSecondsPerWeek = 7 * kSecondsPerDay;

/// After so many seconds years, weekdays and the rules of zones repeat.
inline constexpr std::int64_t kSecondsPerCycle = kDaysPerEra * kSecondsPerDay;

/// From here on, 1 January 2500, every zone repeats itself in cycles.
inline constexpr std::int64_t kCyclesFrom = 16'725'225'600;

}  // namespace QZCore
