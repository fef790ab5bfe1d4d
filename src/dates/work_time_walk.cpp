#include <algorithm>

#include "dates/repeating_steps.h"
#include "dates/work_steps.h"

namespace QZCore {
namespace {

// Next to a change of the zone every day is looked at by itself.
constexpr std::int64_t kMargin = 5 * kSecondsPerDay;

}  // namespace

/// The steps are numbered from 1, in the direction of the walk. Those of one
/// local day with one offset are counted together, and whole weeks far from
/// every change of the zone are counted once.
class WorkTimeWalk::Search {
public:
    Search(const WorkTimeWalk& walk, std::int64_t direction, std::uint64_t target,
           std::int64_t lastStep)
        : walk_(walk),
          direction_(direction),
          stepsPerWeek_(kSecondsPerWeek / walk.step_),
          stepsPerCycle_(kSecondsPerCycle / walk.step_),
          target_(target),
          lastStep_(lastStep) {}

    [[nodiscard]] std::uint64_t count() const { return count_; }

    /// Whether the target was met; then `at` holds the step that did.
    bool run(std::int64_t& at) {
        while (step_ < lastStep_) {
            skipCycles();
            if (!isWithinReach(secondOf(step_ + 1))) return false;
            const ZonePeriod period = walk_.zone_.periodAt(secondOf(step_ + 1));
            const std::int64_t weeks = weeksWithin(period);
            if (weeks < 2) {
                if (countTo(step_ + kMargin / walk_.step_, at)) return true;
                continue;
            }
            const std::uint64_t before = count_;
            if (countTo(step_ + stepsPerWeek_, at)) return true;
            skip(weeks - 1, stepsPerWeek_, count_ - before);
        }
        return false;
    }

private:
    [[nodiscard]] std::int64_t secondOf(std::int64_t step) const {
        return walk_.receiver_.second + direction_ * step * walk_.step_;
    }

    /// The number of the last step that is not beyond `second`, seen in the
    /// direction of the walk.
    [[nodiscard]] std::int64_t lastStepTo(std::int64_t second) const {
        return floorDivided(direction_ * (second - walk_.receiver_.second), walk_.step_);
    }

    /// How many whole weeks lie ahead, away from both ends of the period.
    [[nodiscard]] std::int64_t weeksWithin(const ZonePeriod& period) const {
        const std::int64_t next = secondOf(step_ + 1);
        const std::int64_t first = std::max(period.begin, -2 * kFarthestSecond) + kMargin;
        const std::int64_t last = std::min(period.end, 2 * kFarthestSecond) - kMargin;
        if (next < first || next > last) return 0;
        const std::int64_t end =
            direction_ > 0 ? std::min(last, kFarthestSecond) : std::max(first, -kFarthestSecond);
        return direction_ * (end - next) / kSecondsPerWeek;
    }

    /// Takes whole cycles of the calendar, once what one holds is known.
    void skipCycles() {
        const std::int64_t second = secondOf(step_);
        if (second < kCyclesFrom) {
            cycle_.forget();
            return;
        }
        const auto perCycle = cycle_.stepsPerCycle(step_, count_);
        if (!perCycle) return;
        const std::int64_t limit = direction_ > 0 ? kFarthestSecond : kCyclesFrom;
        skip(direction_ * (limit - second) / kSecondsPerCycle, stepsPerCycle_, *perCycle);
    }

    /// Takes up to `blocks` blocks of steps, and stays before the target and the
    /// end of a cycle that is being counted.
    void skip(std::int64_t blocks, std::int64_t stepsPerBlock, std::uint64_t perBlock) {
        const std::int64_t room = std::min(lastStep_, cycle_.end()) - step_;
        blocks =
            blocksWithin(target_ - count_ - 1, perBlock, std::min(blocks, room / stepsPerBlock));
        step_ += blocks * stepsPerBlock;
        count_ += static_cast<std::uint64_t>(blocks) * perBlock;
    }

    /// Counts the steps up to `end`. Whether the target was met.
    bool countTo(std::int64_t end, std::int64_t& at) {
        end = std::min({end, lastStep_, cycle_.end()});
        while (step_ < end) {
            if (countDay(end, at)) return true;
        }
        return false;
    }

    /// Counts the steps up to `end` that lie in the local day and the period of
    /// the next one.
    bool countDay(std::int64_t end, std::int64_t& at) {
        const std::int64_t next = secondOf(step_ + 1);
        const ZonePeriod period = walk_.zone_.periodAt(next);
        const std::int64_t local = next + period.offset;
        const std::int64_t day = floorDivided(local, kSecondsPerDay);
        const std::int64_t midnight = day * kSecondsPerDay - period.offset;
        WorkHours::Span span{std::max(midnight, period.begin),
                             std::min(midnight + kSecondsPerDay, period.end) - 1};
        const std::int64_t lastOfDay =
            std::min(end, lastStepTo(direction_ > 0 ? span.last : span.first));
        if (walk_.hours_.isWorkDay(weekdayOfDay(day))) {
            const bool hasSpan = walk_.times_ == Times::Ignored || walk_.hours_.hasSpanOnDay(day);
            if (walk_.times_ == Times::Count) narrowToHours(span, day, local);
            if (hasSpan ? countSpan(span, lastOfDay, at) : countSingly(lastOfDay, at)) return true;
        }
        step_ = lastOfDay;
        return false;
    }

    /// Looks at every step up to `lastOfDay`.
    bool countSingly(std::int64_t lastOfDay, std::int64_t& at) {
        for (at = step_ + 1; at <= lastOfDay; ++at) {
            if (!walk_.hours_.contains({secondOf(at), walk_.receiver_.fraction})) continue;
            if (++count_ == target_) return true;
        }
        return false;
    }

    /// Counts the steps within `span` up to `lastOfDay`.
    bool countSpan(const WorkHours::Span& span, std::int64_t lastOfDay, std::int64_t& at) {
        const bool isForward = direction_ > 0;
        const std::int64_t first =
            std::max(step_, lastStepTo((isForward ? span.first : span.last) - direction_));
        const std::int64_t last =
            std::min(lastOfDay, lastStepTo(isForward ? span.last : span.first));
        if (last <= first) return false;
        const auto counted = static_cast<std::uint64_t>(last - first);
        if (counted >= target_ - count_) {
            at = first + static_cast<std::int64_t>(target_ - count_);
            return true;
        }
        count_ += counted;
        return false;
    }

    void narrowToHours(WorkHours::Span& span, std::int64_t day, std::int64_t local) const {
        const WorkHours::Span hours = walk_.hours_.spanOnDay(
            day, local - floorDivided(local, 60) * 60, walk_.receiver_.fraction > 0);
        span = {std::max(span.first, hours.first), std::min(span.last, hours.last)};
    }

    const WorkTimeWalk& walk_;
    std::int64_t direction_;
    std::int64_t stepsPerWeek_;
    std::int64_t stepsPerCycle_;
    std::uint64_t target_;
    std::int64_t lastStep_;
    std::int64_t step_ = 0;
    std::uint64_t count_ = 0;
    CycleCounter cycle_{stepsPerCycle_};
};

std::optional<std::int64_t> WorkTimeWalk::secondAfter(std::int64_t amount) const {
    const std::int64_t direction = amount < 0 ? -1 : 1;
    const auto steps = static_cast<std::uint64_t>(amount);
    const std::uint64_t target = amount < 0 ? 0 - steps : steps;
    const std::int64_t reach = 2 * kFarthestSecond / step_;
    if (target == 0) return receiver_.second;
    std::int64_t at = 0;
    if (hours_.hasWorkDays()) {
        if (!Search(*this, direction, target, reach).run(at)) return std::nullopt;
    } else {
        if (target > static_cast<std::uint64_t>(reach)) return std::nullopt;
        at = static_cast<std::int64_t>(target);
    }
    const std::int64_t second = receiver_.second + direction * at * step_;
    return isWithinReach(second) ? std::optional(second) : std::nullopt;
}

std::int64_t WorkTimeWalk::stepsUntil(Instant to) const {
    // The walk goes on while it is earlier than `to`, fractions included.
    const std::int64_t end = to.second + (receiver_.fraction < to.fraction ? 1 : 0);
    if (receiver_.second >= end) return 0;
    const std::int64_t steps = (end - 1 - receiver_.second) / step_ + 1;
    if (!hours_.hasWorkDays()) return steps;
    std::int64_t at = 0;
    Search search(*this, 1, UINT64_MAX, steps);
    search.run(at);
    return static_cast<std::int64_t>(search.count());
}

}  // namespace QZCore
