#include "QZCore/dates/work_time.h"

#include <algorithm>
#include <utility>

#include "QZCore/dates/calendar.h"
#include "QZCore/dates/dates.h"
#include "QZCore/foundation/log.h"
#include "dates/work_hours.h"
#include "dates/work_steps.h"

namespace QZCore {
namespace {

constexpr std::int64_t kHour = 3600;
constexpr std::int64_t kMinute = 60;

/// The instant that work time leads to, as far as it applies.
struct WorkSum {
    bool applies = false;
    std::optional<std::int64_t> second = {};
};

WorkSum sumOfWorkTime(const TimeZone& zone, const WorkHours& hours, Instant receiver,
                      const DateComponents& components) {
    const auto walk = [&](std::int64_t step) {
        return WorkTimeWalk(zone, hours, receiver, step, WorkTimeWalk::Times::Count);
    };
    // Each amount starts anew from the receiver, so that the last one is the
    // result.
    if (hours.hasBothTimes() && isDefined(components.minute)) {
        return {true, walk(kMinute).secondAfter(components.minute)};
    }
    if (hours.hasBothTimes() && isDefined(components.hour)) {
        return {true, walk(kHour).secondAfter(components.hour)};
    }
    if (hours.hasWorkDays() && isDefined(components.day)) {
        return {true, secondAfterWorkDays(zone, hours, receiver, components.day)};
    }
    return {};
}

/// The first day from that of `second` on that is a work day, at the same time.
std::optional<std::int64_t> secondOnWorkDay(const TimeZone& zone, const WorkHours& hours,
                                            std::int64_t second) {
    if (!hours.hasWorkDays()) return second;
    if (hours.workDaysOfWeek() == 0) return std::nullopt;
    while (!hours.isWorkDay(weekdayOfDay(localTimeAt(zone, second).day))) {
        second = secondAfterDays(zone, second, 1);
    }
    return second;
}

Date dateThatStays(Date date) {
    logLine(u"Work time never comes: the date stays as it is");
    return date;
}

/// The difference between two dates on one day.
DateComponents hoursOrMinutes(const Calendar& calendar, Date from, Date to) {
    const DateComponents difference =
        calendar.components(kCalendarHour | kCalendarMinute, from, to);
    if (difference.hour >= 1 && difference.minute == 0) {
        return DateComponents::dateComponentsWithHour(difference.hour);
    }
    return DateComponents::dateComponentsWithMinute(difference.hour * 60 + difference.minute);
}

/// The difference in one unit, if it is at least one and no days are left.
std::int64_t wholeUnits(const Calendar& calendar, std::uint32_t unit,
                        std::int64_t DateComponents::*field, Date from, Date to) {
    const DateComponents difference = calendar.components(unit | kCalendarDay, from, to);
    return difference.*field >= 1 && difference.day == 0 ? difference.*field : 0;
}

}  // namespace

WorkDays::WorkDays(std::initializer_list<std::uint64_t> weekdays)
    : WorkDays(std::vector<std::uint64_t>(weekdays)) {}

WorkDays::WorkDays(std::vector<std::uint64_t> weekdays) : weekdays_(std::move(weekdays)) {
    std::ranges::sort(weekdays_);
    weekdays_.erase(std::unique(weekdays_.begin(), weekdays_.end()), weekdays_.end());
}

bool WorkDays::containsIndex(std::uint64_t weekday) const {
    return std::ranges::binary_search(weekdays_, weekday);
}

std::optional<std::uint64_t> WorkDays::lastIndex() const {
    return weekdays_.empty() ? std::nullopt : std::optional(weekdays_.back());
}

bool isWorkingWithWorkDays(Date date, const std::optional<WorkDays>& workDays,
                           const std::optional<DateComponents>& workStartTime,
                           const std::optional<DateComponents>& workEndTime) {
    const auto instant = instantOf(date);
    if (!instant) return false;
    const auto zone = sharedGregorianCalendar().timeZone();
    const WorkHours hours(*zone, *instant, workDays, workStartTime, workEndTime);
    const LocalTime local = localTimeAt(*zone, instant->second);
    if (!hours.isWorkDay(weekdayOfDay(local.day))) return false;
    if (local.second == 0 || !hours.hasTimes()) return true;
    return hours.contains(*instant);
}

Date dateByAddingComponents(Date date, const DateComponents& components,
                            const std::optional<WorkDays>& workDays,
                            const std::optional<DateComponents>& workStartTime,
                            const std::optional<DateComponents>& workEndTime) {
    const Calendar& calendar = sharedGregorianCalendar();
    const auto receiver = instantOf(date);
    if (!receiver) return date;
    const auto zone = calendar.timeZone();
    const WorkHours hours(*zone, *receiver, workDays, workStartTime, workEndTime);
    const WorkSum sum = sumOfWorkTime(*zone, hours, *receiver, components);
    if (sum.applies) {
        return sum.second ? Instant{*sum.second, receiver->fraction}.date() : dateThatStays(date);
    }
    const Date plain = calendar.dateByAddingComponents(components, date);
    const auto instant = instantOf(plain);
    if (!hours.hasWorkDays() || !instant) return plain;
    const auto second = secondOnWorkDay(*zone, hours, instant->second);
    return second ? Instant{*second, instant->fraction}.date() : dateThatStays(date);
}

DateComponents componentsToDate(Date date, Date toDate, const std::optional<WorkDays>& workDays,
                                const std::optional<DateComponents>& workStartTime,
                                const std::optional<DateComponents>& workEndTime) {
    const Calendar& calendar = sharedGregorianCalendar();
    const auto from = instantOf(date);
    const auto to = instantOf(toDate);
    if (!from || !to) return {};
    if (calendar.isDate(date, toDate)) return hoursOrMinutes(calendar, date, toDate);
    const auto whole = [&](std::uint32_t unit, std::int64_t DateComponents::*field) {
        return wholeUnits(calendar, unit, field, date, toDate);
    };
    if (const auto years = whole(kCalendarYear, &DateComponents::year)) {
        return DateComponents::dateComponentsWithYear(years);
    }
    if (const auto months = whole(kCalendarMonth, &DateComponents::month)) {
        return DateComponents::dateComponentsWithMonth(months);
    }
    if (const auto weeks = whole(kCalendarWeekOfYear, &DateComponents::weekOfYear)) {
        return DateComponents::dateComponentsWithWeek(weeks);
    }
    const auto zone = calendar.timeZone();
    const WorkHours hours(*zone, *from, workDays, workStartTime, workEndTime);
    if (isSameTimeAsDate(date, toDate)) {
        return DateComponents::dateComponentsWithDay(workDaysBetween(*zone, hours, *from, *to));
    }
    const auto times = hours.hasTimes() ? WorkTimeWalk::Times::Count : WorkTimeWalk::Times::Ignored;
    const auto stepsOf = [&](std::int64_t step) {
        return WorkTimeWalk(*zone, hours, *from, step, times).stepsUntil(*to);
    };
    const std::int64_t minute = calendar.components(kCalendarMinute, date).minute;
    if (minute == calendar.components(kCalendarMinute, toDate).minute) {
        return DateComponents::dateComponentsWithHour(stepsOf(kHour));
    }
    return DateComponents::dateComponentsWithMinute(stepsOf(kMinute));
}

}  // namespace QZCore
