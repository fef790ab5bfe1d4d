// Work time as it holds for one receiver.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/dates/work_time.h"
#include "dates/local_time.h"

namespace QZCore {

/// The weekdays and times that are left after the rules that drop them.
class WorkHours {
public:
    /// Applies the rules for `receiver`. The zone must outlive this.
    WorkHours(const TimeZone& zone, Instant receiver, const std::optional<WorkDays>& workDays,
              const std::optional<DateComponents>& workStartTime,
              const std::optional<DateComponents>& workEndTime);

    [[nodiscard]] bool hasWorkDays() const { return hasWorkDays_; }
    [[nodiscard]] bool hasTimes() const { return start_ || end_; }
    [[nodiscard]] bool hasBothTimes() const { return start_ && end_; }

    /// Whether a weekday, 1 to 7, is a work day. Without work days all are.
    [[nodiscard]] bool isWorkDay(int weekday) const { return (weekdays_ >> weekday & 1) != 0; }
    /// How many weekdays are work days.
    [[nodiscard]] int workDaysOfWeek() const;
    /// The weekday whose midnight closes the last work day; 0 when no weekday
    /// comes behind it.
    [[nodiscard]] int closingWeekday() const { return closingWeekday_; }

    /// Whether an instant is later than the start and not later than the end on
    /// its day. Times without a minute or a second take those of the instant.
    [[nodiscard]] bool contains(Instant instant) const;

    /// Whether the contained instants of a day with equal seconds are one span:
    /// not where a time without a minute falls into an hour that the zone skips
    /// or repeats.
    [[nodiscard]] bool hasSpanOnDay(std::int64_t day) const;

    /// The first and the last second of working time on a day; none when they
    /// are the other way round.
    struct Span {
        std::int64_t first;
        std::int64_t last;
    };
    /// The span of the instants on `day` that are contained and have
    /// `secondOfMinute` and, maybe, a fraction. Only for days that have one.
    [[nodiscard]] Span spanOnDay(std::int64_t day, std::int64_t secondOfMinute,
                                 bool hasFraction) const;

private:
    using Time = std::optional<DateComponents>;

    [[nodiscard]] std::int64_t timeOn(std::int64_t day, const Time& time, std::int64_t minute,
                                      std::int64_t second) const;
    struct Bounds {
        Instant start;
        Instant end;
    };
    [[nodiscard]] Bounds boundsFor(Instant instant) const;
    [[nodiscard]] bool surrounds(Instant receiver) const;
    [[nodiscard]] bool hasWholeHour(const Time& time, std::int64_t day) const;

    const TimeZone& zone_;
    bool hasWorkDays_ = false;
    unsigned weekdays_ = 0b1111'1110;  // a bit for each of 1 to 7
    int closingWeekday_ = 0;
    Time start_;
    Time end_;
};

}  // namespace QZCore
