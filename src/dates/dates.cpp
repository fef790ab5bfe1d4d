#include "QZCore/dates/dates.h"

#include <algorithm>

#include "QZCore/dates/calendar.h"
#include "QZCore/platform/clock.h"
#include "dates/local_time.h"

namespace QZCore {
namespace {

constexpr std::uint32_t kTimeOfDay = kCalendarHour | kCalendarMinute | kCalendarSecond;
constexpr std::uint32_t kDayOfYear = kCalendarYear | kCalendarMonth | kCalendarDay;

Date now() { return sharedWallClock()->now(); }

/// The date built from some fields of `date` alone.
Date rebuiltFrom(Date date, std::uint32_t units) {
    const Calendar& calendar = sharedGregorianCalendar();
    const DateComponents fields = calendar.components(units, date);
    if (fields == DateComponents()) return date;
    return calendar.dateFromComponents(fields).value_or(date);
}

Date plus(Date date, const DateComponents& amounts) {
    return sharedGregorianCalendar().dateByAddingComponents(amounts, date);
}

/// An amount with the other sign; there is no opposite of the smallest, which
/// leads beyond every calendar anyway.
std::int64_t opposite(std::int64_t amount) { return amount == INT64_MIN ? INT64_MAX - 1 : -amount; }

std::int32_t differenceFromToday(Date date, std::uint32_t unit,
                                 std::int64_t DateComponents::*field) {
    const DateComponents difference =
        sharedGregorianCalendar().components(unit, dateForTodayAtMidnight(), dateWithNoTime(date));
    if (!isDefined(difference.*field)) return 0;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(difference.*field, INT32_MIN, INT32_MAX));
}

bool isAt(Date date, const DateComponents& time) { return components(date, kTimeOfDay) == time; }

}  // namespace

std::int64_t currentTimeInMilliseconds() {
    const Date date = now();
    return instantOf(date) ? static_cast<std::int64_t>(date.secondsSince1970 * 1000) : 0;
}

DateComponents components(Date date, std::uint32_t units) {
    return sharedGregorianCalendar().components(units, date);
}

std::optional<Date> dateFromComponents(const std::optional<DateComponents>& components) {
    if (!components) return std::nullopt;
    return sharedGregorianCalendar().dateFromComponents(*components);
}

Date dateWithNoTime(Date date) { return rebuiltFrom(date, kDayOfYear); }

Date dateWithNoSeconds(Date date) {
    return rebuiltFrom(date, kDayOfYear | kCalendarHour | kCalendarMinute);
}

Date dateWithNoDate(Date date) { return rebuiltFrom(date, kTimeOfDay); }

Date dateWithReplacedTime(Date date, Date time) {
    return plus(dateWithNoTime(date), components(time, kTimeOfDay));
}

Date dateWithReplacedTimeComponents(Date date, const std::optional<DateComponents>& components) {
    return sharedGregorianCalendar().replaceComponents(components, date);
}

Date endOfPreviousDay(Date date) {
    return plus(dateWithNoTime(date), DateComponents::dateComponentsWithSecond(-1));
}

bool isSameDayAsDate(Date date, Date other) {
    return sharedGregorianCalendar().isDate(date, other);
}

bool isSameTimeAsDate(Date date, Date other) {
    return dateWithNoDate(date) == dateWithNoDate(other);
}

bool isMidnight(Date date) { return isAt(date, DateComponents::startOfDay()); }

bool isStartOfDay(Date date) { return isMidnight(date); }

bool isEndOfDay(Date date) { return isAt(date, DateComponents::endOfDay()); }

std::int32_t daysFromToday(Date date) {
    return differenceFromToday(date, kCalendarDay, &DateComponents::day);
}

std::int32_t monthsFromToday(Date date) {
    return differenceFromToday(date, kCalendarMonth, &DateComponents::month);
}

std::int32_t yearsFromToday(Date date) {
    return differenceFromToday(date, kCalendarYear, &DateComponents::year);
}

Date dateForTodayAtMidnight() { return dateWithNoTime(now()); }

Date dateForYesterdayAtMidnight() { return dateForDaysAgo(1); }

Date dateForTomorrowAtMidnight() { return dateForDaysFromNow(1); }

Date dateForStartOfWeek() {
    const std::int64_t weekday = components(dateForTodayAtMidnight(), kCalendarWeekday).weekday;
    return isDefined(weekday) ? dateForDaysAgo(weekday - 1) : now();
}

Date dateForSecondsAgo(std::int64_t seconds) { return dateForSecondsFromNow(opposite(seconds)); }
Date dateForMinutesAgo(std::int64_t minutes) { return dateForMinutesFromNow(opposite(minutes)); }
Date dateForHoursAgo(std::int64_t hours) { return dateForHoursFromNow(opposite(hours)); }
Date dateForDaysAgo(std::int64_t days) { return dateForDaysFromNow(opposite(days)); }
Date dateForWeeksAgo(std::int64_t weeks) { return dateForWeeksFromNow(opposite(weeks)); }
Date dateForMonthsAgo(std::int64_t months) { return dateForMonthsFromNow(opposite(months)); }
Date dateForYearsAgo(std::int64_t years) { return dateForYearsFromNow(opposite(years)); }

Date dateForSecondsFromNow(std::int64_t seconds) {
    return plus(now(), DateComponents::dateComponentsWithSecond(seconds));
}

Date dateForMinutesFromNow(std::int64_t minutes) {
    return plus(now(), DateComponents::dateComponentsWithMinute(minutes));
}

Date dateForHoursFromNow(std::int64_t hours) {
    return plus(now(), DateComponents::dateComponentsWithHour(hours));
}

Date dateForDaysFromNow(std::int64_t days) {
    return plus(dateForTodayAtMidnight(), DateComponents::dateComponentsWithDay(days));
}

Date dateForWeeksFromNow(std::int64_t weeks) {
    return plus(dateForTodayAtMidnight(), DateComponents::dateComponentsWithWeek(weeks));
}

Date dateForMonthsFromNow(std::int64_t months) {
    return plus(dateForTodayAtMidnight(), DateComponents::dateComponentsWithMonth(months));
}

Date dateForYearsFromNow(std::int64_t years) {
    return plus(dateForTodayAtMidnight(), DateComponents::dateComponentsWithYear(years));
}

}  // namespace QZCore
