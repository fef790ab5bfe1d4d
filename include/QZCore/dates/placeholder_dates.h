// Placeholder dates: plain dates that stand for a date relative to the moment
// at which they are used, as "today" or "in two weeks". They are kept wherever
// dates are kept.
//
// A placeholder lies in the first nine years before the common era, at the start
// of a year that names its kind, and holds the amount as seconds. It is made and
// read in the process's time zone; one made in another zone is no longer
// recognised as today, yesterday, tomorrow or the start of the week. Amounts
// are to be between 0 and 59: larger ones are read modulo 60, negative ones as
// something else.
#pragma once

#include <cstdint>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

/// Stands for `dateForTodayAtMidnight`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForToday();
/// Stands for `dateForYesterdayAtMidnight`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForYesterday();
/// Stands for `dateForStartOfWeek`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForStartOfWeek();
/// Stands for `dateForTomorrowAtMidnight`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForTomorrow();
/// Stands for `dateForDaysAgo`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForDaysAgo(std::int64_t days);
/// Stands for `dateForWeeksAgo`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForWeeksAgo(std::int64_t weeks);
/// Stands for `dateForMonthsAgo`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForMonthsAgo(std::int64_t months);
/// Stands for `dateForYearsAgo`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForYearsAgo(std::int64_t years);
/// Stands for `dateForDaysFromNow`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForDaysFromNow(std::int64_t days);
/// Stands for `dateForWeeksFromNow`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForWeeksFromNow(std::int64_t weeks);
/// Stands for `dateForMonthsFromNow`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForMonthsFromNow(std::int64_t months);
/// Stands for `dateForYearsFromNow`.
[[nodiscard]] QZ_EXPORT Date placeholderDateForYearsFromNow(std::int64_t years);

/// The real date that a placeholder stands for now; any other date itself. The
/// era is not looked at: dates in the years 2 to 9 of the common era are taken
/// for placeholders, too.
[[nodiscard]] QZ_EXPORT Date dateForPlaceholderDate(Date date);

}  // namespace QZCore
