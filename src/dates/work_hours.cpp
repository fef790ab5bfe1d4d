#include "dates/work_hours.h"

#include <algorithm>
#include <bit>

#include "foundation/civil_date.h"

namespace QZCore {
namespace {

using Time = std::optional<DateComponents>;

/// The fields of a time of day that count; nothing without an hour.
Time usableTime(const Time& time) {
    if (!time || !isDefined(time->hour)) return std::nullopt;
    return DateComponents{.hour = time->hour, .minute = time->minute, .second = time->second};
}

bool isMidnight(const Time& time) { return !time || (time->hour == 0 && time->minute == 0); }

/// Whether a time has no minute of its own but that of the instant in question.
bool takesMinute(const Time& time) { return time && !isDefined(time->minute); }

Time hourOf(const Time& time) { return DateComponents{.hour = time->hour}; }

/// Whether an instant lies behind the second of a time without a minute, which
/// takes that of the instant: in its hour, the seconds alone decide.
bool isBehindSecond(const Time& time, std::int64_t secondOfMinute, bool hasFraction) {
    const std::int64_t second = isDefined(time->second) ? time->second : secondOfMinute;
    return secondOfMinute > second || (secondOfMinute == second && hasFraction);
}

}  // namespace

WorkHours::WorkHours(const TimeZone& zone, Instant receiver,
                     const std::optional<WorkDays>& workDays,
                     const std::optional<DateComponents>& workStartTime,
                     const std::optional<DateComponents>& workEndTime)
    : zone_(zone), start_(usableTime(workStartTime)), end_(usableTime(workEndTime)) {
    if (workDays && workDays->count() != 0 && workDays->count() != 7) {
        hasWorkDays_ = true;
        weekdays_ = 0;
        for (unsigned weekday = 1; weekday <= 7; ++weekday) {
            if (workDays->containsIndex(weekday)) weekdays_ |= 1U << weekday;
        }
        const std::uint64_t last = *workDays->lastIndex();
        closingWeekday_ = last < 7 ? static_cast<int>(last) + 1 : 0;
    }
    const bool isAllDay = isMidnight(start_) && isMidnight(end_);
    if (isAllDay || (hasBothTimes() && !surrounds(receiver))) {
        start_.reset();
        end_.reset();
    }
}

int WorkHours::workDaysOfWeek() const { return std::popcount(weekdays_); }

/// The second of a time on a day, with the given minute and second where it has
/// none. A missing time is an instant before year 1.
std::int64_t WorkHours::timeOn(std::int64_t day, const Time& time, std::int64_t minute,
                               std::int64_t second) const {
    constexpr DateComponents kBeforeYear1{
        .year = 0, .month = 0, .day = 0, .hour = 0, .minute = 0, .second = 0};
    DateComponents fields = kBeforeYear1;
    if (time) {
        const CivilDate date = civilFromDays(day);
        fields = {.year = date.year >= 1 ? date.year : 1 - date.year,  // the era is not kept
                  .month = date.month,
                  .day = date.day,
                  .hour = time->hour,
                  .minute = isDefined(time->minute) ? time->minute : minute,
                  .second = isDefined(time->second) ? time->second : second};
    }
    // A time that is too far away never comes, or has always passed.
    const std::int64_t beyond = fields.hour < 0 ? -kFarthestSecond - 1 : kFarthestSecond + 1;
    return secondOfComponents(zone_, fields).value_or(beyond);
}

WorkHours::Bounds WorkHours::boundsFor(Instant instant) const {
    const LocalTime local = localTimeAt(zone_, instant.second);
    const auto on = [&](const Time& time) {
        return Instant{timeOn(local.day, time, local.second / 60 % 60, local.second % 60), 0};
    };
    return {on(start_), on(end_)};
}

bool WorkHours::surrounds(Instant receiver) const {
    const Bounds bounds = boundsFor(receiver);
    return bounds.start <= receiver && receiver <= bounds.end;
}

bool WorkHours::contains(Instant instant) const {
    const Bounds bounds = boundsFor(instant);
    return bounds.start < instant && instant <= bounds.end;
}

/// Whether the hour of a time is shown on a day, from its first to its last
/// second.
bool WorkHours::hasWholeHour(const Time& time, std::int64_t day) const {
    const std::int64_t first = timeOn(day, hourOf(time), 0, 0);
    const std::int64_t last = timeOn(day, hourOf(time), 59, 59);
    const std::int64_t shown = localTimeAt(zone_, first).second / 3600;
    const bool isBeyondAllDays = first == last;
    return isBeyondAllDays || (last - first == 3599 && (shown - time->hour % 24) % 24 == 0);
}

bool WorkHours::hasSpanOnDay(std::int64_t day) const {
    return (!takesMinute(start_) || hasWholeHour(start_, day)) &&
           (!takesMinute(end_) || hasWholeHour(end_, day));
}

WorkHours::Span WorkHours::spanOnDay(std::int64_t day, std::int64_t secondOfMinute,
                                     bool hasFraction) const {
    const auto firstBehind = [&](const Time& time) {
        if (takesMinute(time)) {
            const bool isInHour = isBehindSecond(time, secondOfMinute, hasFraction);
            return timeOn(day, hourOf(time), 0, 0) + (isInHour ? 0 : 3600);
        }
        return timeOn(day, time, 0, secondOfMinute) + (hasFraction ? 0 : 1);
    };
    return {firstBehind(start_), firstBehind(end_) - 1};
}

}  // namespace QZCore
