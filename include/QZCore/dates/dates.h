// Dates relative to a day: midnights, times of day, days ago and from now.
//
// All operations go through the shared calendar, in the process's time zone.
// "Now" is what the shared wall clock says. A date that is not a number, or too
// far away for the calendar, is returned unchanged by what returns a date, and
// is the same as nothing. Every function may be called from any thread.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/dates/date_components.h"
#include "QZCore/dates/work_time.h"
#include "QZCore/export.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

// ---- Now --------------------------------------------------------------------

/// The milliseconds since 1 January 1970, 00:00 UTC, without fractions; 0 when
/// the clock shows no date.
[[nodiscard]] QZ_EXPORT std::int64_t currentTimeInMilliseconds();

// ---- Fields -----------------------------------------------------------------

/// The fields of `date` named by a sum of `CalendarUnit`s.
[[nodiscard]] QZ_EXPORT DateComponents components(Date date, std::uint32_t units);
/// The date with the given fields; no date for no components.
[[nodiscard]] QZ_EXPORT std::optional<Date> dateFromComponents(
    const std::optional<DateComponents>& components);

/// Midnight of the day of `date`.
[[nodiscard]] QZ_EXPORT Date dateWithNoTime(Date date);
/// `date` at the start of its minute.
[[nodiscard]] QZ_EXPORT Date dateWithNoSeconds(Date date);
/// The hour, minute and second of `date` on 1 January of year 1.
[[nodiscard]] QZ_EXPORT Date dateWithNoDate(Date date);
/// The midnight of `date`, and the hour, minute and second of `time` added to
/// it.
[[nodiscard]] QZ_EXPORT Date dateWithReplacedTime(Date date, Date time);
/// `Calendar::replaceComponents` of the shared calendar.
[[nodiscard]] QZ_EXPORT Date
dateWithReplacedTimeComponents(Date date, const std::optional<DateComponents>& components);
/// The last second before the day of `date`.
[[nodiscard]] QZ_EXPORT Date endOfPreviousDay(Date date);

// ---- Comparing --------------------------------------------------------------

/// Whether both dates fall on one day.
[[nodiscard]] QZ_EXPORT bool isSameDayAsDate(Date date, Date other);
/// Whether both dates have the same hour, minute and second.
[[nodiscard]] QZ_EXPORT bool isSameTimeAsDate(Date date, Date other);
/// Whether hour, minute and second are 0.
[[nodiscard]] QZ_EXPORT bool isMidnight(Date date);
/// The same.
[[nodiscard]] QZ_EXPORT bool isStartOfDay(Date date);
/// Whether it is 23:59:59.
[[nodiscard]] QZ_EXPORT bool isEndOfDay(Date date);

/// The days from today to the day of `date`, negative for the past.
[[nodiscard]] QZ_EXPORT std::int32_t daysFromToday(Date date);
/// The whole months from today to the day of `date`.
[[nodiscard]] QZ_EXPORT std::int32_t monthsFromToday(Date date);
/// The whole years from today to the day of `date`.
[[nodiscard]] QZ_EXPORT std::int32_t yearsFromToday(Date date);

// ---- Midnights --------------------------------------------------------------

/// The start of today.
[[nodiscard]] QZ_EXPORT Date dateForTodayAtMidnight();
/// A day before that.
[[nodiscard]] QZ_EXPORT Date dateForYesterdayAtMidnight();
/// A day behind that.
[[nodiscard]] QZ_EXPORT Date dateForTomorrowAtMidnight();
/// The start of the Sunday on or before today, in every locale.
[[nodiscard]] QZ_EXPORT Date dateForStartOfWeek();

// ---- Ago and from now -------------------------------------------------------

/// Now minus seconds.
[[nodiscard]] QZ_EXPORT Date dateForSecondsAgo(std::int64_t seconds);
/// Now minus minutes.
[[nodiscard]] QZ_EXPORT Date dateForMinutesAgo(std::int64_t minutes);
/// Now minus hours.
[[nodiscard]] QZ_EXPORT Date dateForHoursAgo(std::int64_t hours);
/// The start of today minus days.
[[nodiscard]] QZ_EXPORT Date dateForDaysAgo(std::int64_t days);
/// The start of today minus weeks.
[[nodiscard]] QZ_EXPORT Date dateForWeeksAgo(std::int64_t weeks);
/// The start of today minus months.
[[nodiscard]] QZ_EXPORT Date dateForMonthsAgo(std::int64_t months);
/// The start of today minus years.
[[nodiscard]] QZ_EXPORT Date dateForYearsAgo(std::int64_t years);

/// Now plus seconds.
[[nodiscard]] QZ_EXPORT Date dateForSecondsFromNow(std::int64_t seconds);
/// Now plus minutes.
[[nodiscard]] QZ_EXPORT Date dateForMinutesFromNow(std::int64_t minutes);
/// Now plus hours.
[[nodiscard]] QZ_EXPORT Date dateForHoursFromNow(std::int64_t hours);
/// The start of today plus days.
[[nodiscard]] QZ_EXPORT Date dateForDaysFromNow(std::int64_t days);
/// The start of today plus weeks.
[[nodiscard]] QZ_EXPORT Date dateForWeeksFromNow(std::int64_t weeks);
/// The start of today plus months.
[[nodiscard]] QZ_EXPORT Date dateForMonthsFromNow(std::int64_t months);
/// The start of today plus years.
[[nodiscard]] QZ_EXPORT Date dateForYearsFromNow(std::int64_t years);

}  // namespace QZCore
