// Calendar: dates as years, months, days and times of day.
//
// The calendar is the Gregorian one, taken to hold for all time. Local time is
// that of a time zone. Hours, minutes and seconds are elapsed time; days, weeks,
// months and years keep the time of day:
// - a time of day that daylight saving time skips moves later by what is
//   skipped;
// - of a time of day that comes twice the later one is meant, unless days are
//   added to the earlier one;
// - a month or a year later is at most the last day of its month.
//
// Dates that are not a number or farther than 285 million years from 1970 have
// no fields, and sums that lead there give the date that they began with.
// Calendars may be used from any thread.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "QZCore/dates/date_components.h"
#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/platform/time_zone.h"

namespace QZCore {

/// Fields of a date, as a sum of bits.
enum CalendarUnit : std::uint32_t {
    kCalendarEra = 2,
    kCalendarYear = 4,
    kCalendarMonth = 8,
    kCalendarDay = 16,
    kCalendarHour = 32,
    kCalendarMinute = 64,
    kCalendarSecond = 128,
    kCalendarWeekday = 512,
    kCalendarWeekOfYear = 8192,
    kCalendarNanosecond = 32768,
};

/// The Gregorian calendar in a time zone.
class QZ_EXPORT Calendar {
public:
    /// A calendar in `timeZone`; an empty pointer stands for the process's time
    /// zone, whichever that is when the calendar is used.
    explicit Calendar(std::shared_ptr<const TimeZone> timeZone = nullptr);

    /// The time zone in use.
    [[nodiscard]] std::shared_ptr<const TimeZone> timeZone() const;

    /// The fields `units` of a date; the others are undefined.
    [[nodiscard]] DateComponents components(std::uint32_t units, Date fromDate) const;

    /// The difference between two dates in the given units, year to second. Each
    /// unit, the largest first, takes as much as does not lead beyond `toDate`;
    /// amounts are negative when that is the earlier one.
    [[nodiscard]] DateComponents components(std::uint32_t units, Date fromDate, Date toDate) const;

    /// The date with the given era, year, month, day and time of day. Fields
    /// that are missing are those of 1 January of year 1, 0:00. Fields beyond
    /// their range carry into the next larger one: day 0 is the last of the
    /// month before. Nothing when that leads too far.
    [[nodiscard]] std::optional<Date> dateFromComponents(const DateComponents& components) const;

    /// `toDate` and the given amounts, added one after the other from years to
    /// seconds. An era is no amount; a weekday counts as days.
    [[nodiscard]] Date dateByAddingComponents(const DateComponents& components, Date toDate) const;

    /// Whether both dates fall on one day.
    [[nodiscard]] bool isDate(Date date, Date inSameDayAsDate) const;

    /// Whether each of year, month, day, hour, minute and second that
    /// `components` define is that of the date; false when they define none.
    [[nodiscard]] bool hasEqualComponents(const DateComponents& components, Date inDate) const;

    /// The date built from the year, month, day, hour, minute and second of a
    /// date, each replaced by that of `components` if they define it. The era
    /// is not kept, and no fraction of a second. Absent components replace all
    /// six by 0, which gives an instant before year 1: what must come after it
    /// always does. The date itself where nothing can be built.
    [[nodiscard]] Date replaceComponents(const std::optional<DateComponents>& components,
                                         Date inDate) const;

private:
    std::shared_ptr<const TimeZone> timeZone_;
};

/// The calendar that every operation on dates uses: made once, in the process's
/// time zone.
[[nodiscard]] QZ_EXPORT const Calendar& sharedGregorianCalendar();

/// A new calendar in the process's time zone.
[[nodiscard]] QZ_EXPORT Calendar gregorianCalendar();

}  // namespace QZCore
