// Days of the proleptic Gregorian calendar, counted and named.
//
// The calendar's present rules are taken to hold for all time. Years are
// astronomical: 1 BC is year 0, 2 BC is year -1.
#pragma once

#include <cstdint>

namespace QZCore {

inline constexpr std::int64_t kSecondsPerDay = 86'400;

/// A day by its year, month (1 to 12) and day of the month (from 1).
struct CivilDate {
    std::int64_t year = 1970;
    int month = 1;
    int day = 1;

    /// Exact comparison of all fields.
    friend constexpr bool operator==(const CivilDate&, const CivilDate&) = default;
};

/// Whether `year` has a 29 February.
[[nodiscard]] constexpr bool isLeapYear(std::int64_t year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

/// The number of days of a month of a year.
[[nodiscard]] constexpr int daysInMonth(std::int64_t year, int month) {
    if (month == 2) return isLeapYear(year) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// `a` divided by `b` above 0, rounded down.
[[nodiscard]] constexpr std::int64_t floorDivided(std::int64_t a, std::int64_t b) {
    return a / b - (a % b < 0 ? 1 : 0);
}

/// The day of the week of the day that lies `days` days after 1 January 1970, a
/// Thursday: 1 is Sunday, 7 Saturday.
[[nodiscard]] constexpr int weekdayOfDay(std::int64_t days) {
    const std::int64_t sinceSunday = days + 4;
    return static_cast<int>(sinceSunday - floorDivided(sinceSunday, 7) * 7) + 1;
}

// The two functions below let the year begin in March, so that the day that
// comes and goes is the last of the year: then the days before a month follow
// one line, 30.6 a month, whatever the year. Years repeat every 400, which are
// 146,097 days; the first such era begins on 1 March of year 0, 719,468 days
// before 1970. Years up to 10^15 in size do not overflow.

inline constexpr std::int64_t kDaysPerEra = 146'097;
inline constexpr std::int64_t kDaysBefore1970 = 719'468;

/// The number of days from 1 January 1970 to `date`.
[[nodiscard]] constexpr std::int64_t daysFromCivil(CivilDate date) {
    const std::int64_t year = date.year - (date.month <= 2 ? 1 : 0);
    const std::int64_t era = floorDivided(year, 400);
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t monthFromMarch = (date.month + 9) % 12;
    const std::int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + date.day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * kDaysPerEra + dayOfEra - kDaysBefore1970;
}

/// The day that lies `days` days after 1 January 1970.
[[nodiscard]] constexpr CivilDate civilFromDays(std::int64_t days) {
    const std::int64_t sinceFirstEra = days + kDaysBefore1970;
    const std::int64_t era = floorDivided(sinceFirstEra, kDaysPerEra);
    const std::int64_t dayOfEra = sinceFirstEra - era * kDaysPerEra;
    // Taking out the leap days before `dayOfEra` leaves years of 365 days.
    const std::int64_t leapDays =
        dayOfEra / 1460 - dayOfEra / 36'524 + dayOfEra / (kDaysPerEra - 1);
    const std::int64_t yearOfEra = (dayOfEra - leapDays) / 365;
    const std::int64_t dayOfYear = dayOfEra - (yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const auto day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    const auto month =
        static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    return {era * 400 + yearOfEra + (month <= 2 ? 1 : 0), month, day};
}

}  // namespace QZCore
