#include <algorithm>
#include <cstdlib>

#include "dates/repeating_steps.h"
#include "dates/work_steps.h"

namespace QZCore {
namespace {

/// A walk in steps of a day, until enough steps have counted or it has come to
/// its end.
class DayWalk {
public:
    DayWalk(const TimeZone& zone, const WorkHours& hours, Instant receiver, std::int64_t direction)
        : zone_(zone),
          hours_(hours),
          direction_(direction),
          startsAtMidnight_(localTimeAt(zone, receiver.second).second == 0),
          second_(receiver.second),
          period_(zone.periodAt(second_)) {}

    /// Lets the walk end when so many steps have counted.
    void setTarget(std::uint64_t target) { target_ = target; }
    /// Lets the walk end at or behind a second; `isExact` tells whether it can
    /// come to the very instant.
    void setEnd(std::int64_t end, bool isExact) {
        end_ = end;
        endIsExact_ = isExact;
    }

    [[nodiscard]] std::int64_t second() const { return second_; }
    [[nodiscard]] std::uint64_t count() const { return count_; }

    /// Whether the walk has ended before the calendar does.
    bool run() {
        if (neverCounts()) return false;
        while (!hasEnded()) {
            skipCycles();
            if (second_ < period_.begin || second_ >= period_.end) {
                period_ = zone_.periodAt(second_);
            }
            std::int64_t room = std::min(stepsWithin(period_), stepsToEnd());
            if (stepsWithinReach() <= 0) return false;
            room -= skipWeeks(room);
            const std::int64_t day = floorDivided(second_ + period_.offset, kSecondsPerDay);
            const std::int64_t some = std::min<std::int64_t>(room, 14);
            for (std::int64_t i = 1; i <= some && !hasEnded(); ++i) {
                second_ += direction_ * kSecondsPerDay;
                noteStep(weekdayOfDay(day + i * direction_));
            }
            if (room <= some && !hasEnded()) stepAcross();
        }
        return true;
    }

private:
    /// Without a work day only one step can count, the closing one.
    [[nodiscard]] bool neverCounts() const {
        if (hours_.workDaysOfWeek() > 0 || end_ != INT64_MAX) return false;
        return target_ > 1 || !startsAtMidnight_ || hours_.closingWeekday() == 0;
    }

    [[nodiscard]] bool hasEnded() const { return count_ >= target_ || second_ >= end_; }

    /// How many steps stay in the period, and within the reach of dates.
    [[nodiscard]] std::int64_t stepsWithin(const ZonePeriod& period) const {
        const std::int64_t last = std::min(period.end, kFarthestSecond) - 1;
        const std::int64_t first = std::max(period.begin, -kFarthestSecond);
        return (direction_ > 0 ? last - second_ : second_ - first) / kSecondsPerDay;
    }

    [[nodiscard]] std::int64_t stepsWithinReach() const {
        return (kFarthestSecond - direction_ * second_) / kSecondsPerDay;
    }

    /// How many steps there are before the end, the one to or behind it
    /// included.
    [[nodiscard]] std::int64_t stepsToEnd() const {
        return end_ == INT64_MAX ? INT64_MAX : (end_ - 1 - second_) / kSecondsPerDay + 1;
    }

    /// Takes whole weeks of `room` steps. Returns the steps taken.
    std::int64_t skipWeeks(std::int64_t room) {
        const auto perWeek = static_cast<std::uint64_t>(hours_.workDaysOfWeek());
        const std::int64_t weeks = blocksToSkip(perWeek, (room - 1) / 7);
        skip(weeks, kSecondsPerWeek, perWeek);
        return weeks * 7;
    }

    /// Takes whole cycles of the calendar, once what one holds is known.
    void skipCycles() {
        if (second_ < kCyclesFrom) return;
        const auto perCycle = cycle_.stepsPerCycle(direction_ * second_, count_);
        if (!perCycle) return;
        const std::int64_t limit =
            direction_ > 0 ? std::min(end_, kFarthestSecond) - 1 : kCyclesFrom;
        const std::int64_t ahead = direction_ * (limit - second_) / kSecondsPerCycle;
        skip(blocksToSkip(*perCycle, ahead), kSecondsPerCycle, *perCycle);
    }

    /// At least the last two steps that count are to be looked at.
    [[nodiscard]] std::int64_t blocksToSkip(std::uint64_t perBlock, std::int64_t most) const {
        if (target_ - count_ < 2) return 0;
        return blocksWithin(target_ - count_ - 2, perBlock, most);
    }

    void skip(std::int64_t blocks, std::int64_t secondsPerBlock, std::uint64_t perBlock) {
        second_ += direction_ * blocks * secondsPerBlock;
        count_ += static_cast<std::uint64_t>(blocks) * perBlock;
    }

    /// Takes one step that may lead over a change of the zone. Most changes
    /// leave the time of day alone.
    void stepAcross() {
        const ZonePeriod before = period_;
        const std::int64_t plain = second_ + direction_ * kSecondsPerDay;
        period_ = zone_.periodAt(plain);
        const std::int64_t moved = plain + before.offset - period_.offset;
        const bool isShown = moved >= period_.begin && moved < period_.end;
        if (isShown && std::abs(before.offset - period_.offset) < kSecondsPerDay) {
            second_ = moved;
        } else {
            second_ = secondAfterDays(zone_, second_, direction_);
            period_ = zone_.periodAt(second_);
        }
        noteStep(weekdayOfDay(floorDivided(second_ + period_.offset, kSecondsPerDay)));
    }

    void noteStep(int weekday) {
        const bool isLast =
            target_ == UINT64_MAX ? endIsExact_ && second_ == end_ : count_ + 1 == target_;
        const bool closes = startsAtMidnight_ && isLast && weekday == hours_.closingWeekday();
        if (hours_.isWorkDay(weekday) || closes) ++count_;
    }

    const TimeZone& zone_;
    const WorkHours& hours_;
    std::int64_t direction_;
    bool startsAtMidnight_;
    std::int64_t second_;
    ZonePeriod period_;  // that held `second_` a step ago, or now
    std::uint64_t count_ = 0;
    std::uint64_t target_ = UINT64_MAX;
    std::int64_t end_ = INT64_MAX;
    bool endIsExact_ = false;
    CycleCounter cycle_{kSecondsPerCycle};
};

}  // namespace

std::optional<std::int64_t> secondAfterWorkDays(const TimeZone& zone, const WorkHours& hours,
                                                Instant receiver, std::int64_t days) {
    DayWalk walk(zone, hours, receiver, days < 0 ? -1 : 1);
    const auto amount = static_cast<std::uint64_t>(days);
    walk.setTarget(days < 0 ? 0 - amount : amount);
    if (!walk.run()) return std::nullopt;
    return walk.second();
}

std::int64_t workDaysBetween(const TimeZone& zone, const WorkHours& hours, Instant from,
                             Instant to) {
    DayWalk walk(zone, hours, from, 1);
    // The walk goes on while it is earlier than `to`, fractions included.
    const bool isEarlierInSecond = from.fraction < to.fraction;
    walk.setEnd(to.second + (isEarlierInSecond ? 1 : 0), from.fraction == to.fraction);
    walk.run();
    return static_cast<std::int64_t>(walk.count());
}

}  // namespace QZCore
