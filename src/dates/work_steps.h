// Counting the steps of a walk through work time without taking them.
#pragma once

#include <cstdint>
#include <optional>

#include "dates/local_time.h"
#include "dates/work_hours.h"

namespace QZCore {

/// The instant that a walk from `receiver` in steps of a day comes to when as
/// many steps as `days` says, backwards when it is negative, have counted;
/// nothing when that never happens. A step counts that ends on a work day, and
/// the last one also when it ends on the closing weekday and the receiver is
/// at midnight.
[[nodiscard]] std::optional<std::int64_t> secondAfterWorkDays(const TimeZone& zone,
                                                              const WorkHours& hours,
                                                              Instant receiver, std::int64_t days);

/// How many steps of a day count until a walk from `from` has come to `to`.
[[nodiscard]] std::int64_t workDaysBetween(const TimeZone& zone, const WorkHours& hours,
                                           Instant from, Instant to);

/// A walk in steps of an hour or a minute of elapsed time.
class WorkTimeWalk {
public:
    /// Whether steps count that end on a work day whatever the time.
    enum class Times : bool { Ignored, Count };

    /// A walk from `receiver` in steps of `step` seconds.
    WorkTimeWalk(const TimeZone& zone, const WorkHours& hours, Instant receiver, std::int64_t step,
                 Times times)
        : zone_(zone), hours_(hours), receiver_(receiver), step_(step), times_(times) {}

    /// Where the walk is when as many steps as `amount` says, backwards when it
    /// is negative, have counted; nothing when that never happens.
    [[nodiscard]] std::optional<std::int64_t> secondAfter(std::int64_t amount) const;

    /// How many steps count until the walk has come to `to`.
    [[nodiscard]] std::int64_t stepsUntil(Instant to) const;

private:
    class Search;

    const TimeZone& zone_;
    const WorkHours& hours_;
    Instant receiver_;
    std::int64_t step_;
    Times times_;
};

}  // namespace QZCore
