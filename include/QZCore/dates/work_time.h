// Work time: dates that count only on working days and in working hours.
//
// Work days are a set of weekdays. Work starts and ends at a time of day, each
// given as an hour, a minute and maybe a second; without a second, that of the
// date in question is taken. The rules, for a date called the receiver:
// - no work days, or seven, means any day;
// - a time without an hour is no time, and neither are two times of 0:00;
// - when the receiver lies before the start or after the end on its own day,
//   both times are dropped: working hours only restrict dates within them.
//
// Sums and distances are what stepping day by day, hour by hour or minute by
// minute through the calendar gives, and cost about the same for a minute and
// for a hundred years. A date that is not a number, or too far away for the
// calendar, is no working time, stays as it is and has no distance. Every
// function uses the shared calendar and may be called from any thread.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <vector>

#include "QZCore/dates/date_components.h"
#include "QZCore/export.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

/// A set of weekdays: 1 is Sunday, 7 Saturday. Other numbers may be in it; no
/// day has them.
class QZ_EXPORT WorkDays {
public:
    /// No day.
    WorkDays() = default;
    /// The given days.
    WorkDays(std::initializer_list<std::uint64_t> weekdays);
    /// The given days.
    explicit WorkDays(std::vector<std::uint64_t> weekdays);

    /// Whether a number is in the set.
    [[nodiscard]] bool containsIndex(std::uint64_t weekday) const;
    /// How many numbers are in the set.
    [[nodiscard]] std::size_t count() const { return weekdays_.size(); }
    /// The largest number; nothing when the set is empty.
    [[nodiscard]] std::optional<std::uint64_t> lastIndex() const;

private:
    std::vector<std::uint64_t> weekdays_;  // in order, each once
};

/// Whether `date` is working time: its weekday is a work day and, unless it is
/// midnight, its time is later than the start and not later than the end. A
/// missing start has always passed and a missing end is never met, so that a
/// start alone leaves only midnight.
[[nodiscard]] QZ_EXPORT bool isWorkingWithWorkDays(
    Date date, const std::optional<WorkDays>& workDays,
    const std::optional<DateComponents>& workStartTime = std::nullopt,
    const std::optional<DateComponents>& workEndTime = std::nullopt);

/// The date that lies an amount of work time after `date`; callers add one unit
/// at a time. Of the amounts that work time applies to, the smallest counts and
/// replaces the others:
/// - days, when there are work days: whole days are stepped over and those that
///   end on a work day counted. From a midnight, the midnight behind the last
///   working weekday counts as that day's end when it is the last to count;
/// - hours and minutes, when there are both times: those are counted that end
///   within working hours on a work day, or all when there are no work days.
///
/// Where work time applies to none of them all amounts are added as they are,
/// and then days until the weekday is a work day. Without work days and times
/// this is the plain sum.
///
/// When no step can ever count, or the steps lead beyond the calendar, one line
/// is logged ("Work time never comes: the date stays as it is") and `date`
/// returned.
[[nodiscard]] QZ_EXPORT Date
dateByAddingComponents(Date date, const DateComponents& components,
                       const std::optional<WorkDays>& workDays = std::nullopt,
                       const std::optional<DateComponents>& workStartTime = std::nullopt,
                       const std::optional<DateComponents>& workEndTime = std::nullopt);

/// The distance from `date` to `toDate` as one amount. The first that applies:
/// - on one day, hours and minutes regardless of work time: whole hours if at
///   least one, else minutes, negative ones for an earlier `toDate`;
/// - whole years, whole months or whole weeks, if at least one and the days
///   come out even;
/// - working days when both have the same time of day, working hours when they
///   have the same minute of the hour, else working minutes; none when `toDate`
///   is earlier.
[[nodiscard]] QZ_EXPORT DateComponents
componentsToDate(Date date, Date toDate, const std::optional<WorkDays>& workDays = std::nullopt,
                 const std::optional<DateComponents>& workStartTime = std::nullopt,
                 const std::optional<DateComponents>& workEndTime = std::nullopt);

}  // namespace QZCore
