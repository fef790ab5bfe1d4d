// Date components: the fields of a date on a calendar, or amounts of them.
//
// A field that is not set holds `kUndefinedDateComponent`.
#pragma once

#include <cstdint>

#include "QZCore/export.h"

namespace QZCore {

/// What a field that is not set holds: the largest signed 64-bit value.
inline constexpr std::int64_t kUndefinedDateComponent = INT64_MAX;

/// Fields of a date. Each is set or undefined.
struct QZ_EXPORT DateComponents {
    /// 0 before the common era, 1 in it.
    std::int64_t era = kUndefinedDateComponent;
    /// The year of the era, from 1.
    std::int64_t year = kUndefinedDateComponent;
    /// 1 to 12.
    std::int64_t month = kUndefinedDateComponent;
    /// 1 to 31.
    std::int64_t day = kUndefinedDateComponent;
    /// 0 to 23.
    std::int64_t hour = kUndefinedDateComponent;
    /// 0 to 59.
    std::int64_t minute = kUndefinedDateComponent;
    /// 0 to 59.
    std::int64_t second = kUndefinedDateComponent;
    /// 0 to 999,999,999.
    std::int64_t nanosecond = kUndefinedDateComponent;
    /// 1, Sunday, to 7, Saturday.
    std::int64_t weekday = kUndefinedDateComponent;
    /// The number of the week of the year. Weeks begin on a Sunday, and the one
    /// that holds 1 January is the first, the last days of the year before
    /// included. As an amount, a number of weeks.
    std::int64_t weekOfYear = kUndefinedDateComponent;

    // The makers below leave every field that they do not name undefined. An
    // argument of the undefined value leaves its field so, too.

    /// No field.
    [[nodiscard]] static DateComponents dateComponents() { return {}; }
    /// A year.
    [[nodiscard]] static DateComponents dateComponentsWithYear(std::int64_t year);
    /// A month.
    [[nodiscard]] static DateComponents dateComponentsWithMonth(std::int64_t month);
    /// A week of the year, or a number of weeks.
    [[nodiscard]] static DateComponents dateComponentsWithWeek(std::int64_t week);
    /// A day.
    [[nodiscard]] static DateComponents dateComponentsWithDay(std::int64_t day);
    /// A day of a year.
    [[nodiscard]] static DateComponents dateComponentsWithYear(std::int64_t year,
                                                               std::int64_t month,
                                                               std::int64_t day);
    /// An hour.
    [[nodiscard]] static DateComponents dateComponentsWithHour(std::int64_t hour);
    /// A minute.
    [[nodiscard]] static DateComponents dateComponentsWithMinute(std::int64_t minute);
    /// A second.
    [[nodiscard]] static DateComponents dateComponentsWithSecond(std::int64_t second);
    /// A time of day.
    [[nodiscard]] static DateComponents dateComponentsWithHour(std::int64_t hour,
                                                               std::int64_t minute,
                                                               std::int64_t second);
    /// A day and a time.
    [[nodiscard]] static DateComponents dateComponentsWithYear(std::int64_t year,
                                                               std::int64_t month, std::int64_t day,
                                                               std::int64_t hour,
                                                               std::int64_t minute,
                                                               std::int64_t second);
    /// 0:00:00.
    [[nodiscard]] static DateComponents startOfDay();
    /// 23:59:59.
    [[nodiscard]] static DateComponents endOfDay();

    /// Exact comparison of all fields.
    friend bool operator==(const DateComponents&, const DateComponents&) = default;
};

/// Whether a field is set.
[[nodiscard]] constexpr bool isDefined(std::int64_t component) {
    return component != kUndefinedDateComponent;
}

}  // namespace QZCore
