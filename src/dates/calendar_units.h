// The units of the calendar as amounts: added to an instant, and taken from the
// way between two.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/dates/calendar.h"
#include "dates/local_time.h"

namespace QZCore {

/// A unit whose amounts can be added.
struct AddedUnit {
    std::uint32_t unit;
    std::int64_t DateComponents::*field;
    double aboutSeconds;
};

/// In the order in which amounts are added and taken.
inline constexpr AddedUnit kAddedUnits[] = {
    {kCalendarYear, &DateComponents::year, 365.2425 * kSecondsPerDay},
    {kCalendarMonth, &DateComponents::month, 365.2425 * kSecondsPerDay / 12},
    {kCalendarWeekOfYear, &DateComponents::weekOfYear, 7.0 * kSecondsPerDay},
    {kCalendarDay, &DateComponents::day, kSecondsPerDay},
    {kCalendarHour, &DateComponents::hour, 3600},
    {kCalendarMinute, &DateComponents::minute, 60},
    {kCalendarSecond, &DateComponents::second, 1},
};

/// The second that lies an amount of one unit, year to second, after another;
/// nothing when that is beyond reach.
[[nodiscard]] std::optional<std::int64_t> secondAfter(const TimeZone& zone, std::int64_t second,
                                                      std::uint32_t unit, std::int64_t amount);

/// Takes from `from` the most of one unit that does not lead beyond `to`, and
/// moves it by that.
std::int64_t takeUnit(const TimeZone& zone, const AddedUnit& unit, Instant& from, Instant to);

}  // namespace QZCore
