// Work time by stepping through the calendar, as its rules are told.
#pragma once

#include "QZCore/dates.h"

namespace QZCore::testing {

/// The arguments of one question about work time, and the literal answers.
struct SteppedWorkTime {
    std::optional<WorkDays> days;
    std::optional<DateComponents> start;
    std::optional<DateComponents> end;

    void normaliseFor(Date receiver) {
        if (days && (days->count() == 0 || days->count() == 7)) days.reset();
        if (start && !isDefined(start->hour)) start.reset();
        if (end && !isDefined(end->hour)) end.reset();
        const auto isZero = [](const std::optional<DateComponents>& time) {
            return !time || (time->hour == 0 && time->minute == 0);
        };
        if (isZero(start) && isZero(end)) start = end = std::nullopt;
        if (start && end &&
            (isBefore(receiver, at(start, receiver)) || isBefore(at(end, receiver), receiver))) {
            start = end = std::nullopt;
        }
    }

    [[nodiscard]] static bool isBefore(Date a, Date b) {
        return a.secondsSince1970 < b.secondsSince1970;
    }
    [[nodiscard]] static Date at(const std::optional<DateComponents>& time, Date date) {
        return sharedGregorianCalendar().replaceComponents(time, date);
    }
    [[nodiscard]] static Date moved(Date date, std::int64_t DateComponents::*unit,
                                    std::int64_t amount) {
        DateComponents components;
        components.*unit = amount;
        return sharedGregorianCalendar().dateByAddingComponents(components, date);
    }
    [[nodiscard]] static std::uint64_t weekday(Date date) {
        return static_cast<std::uint64_t>(components(date, kCalendarWeekday).weekday);
    }
    [[nodiscard]] bool isInHours(Date date) const {
        return isBefore(at(start, date), date) && !isBefore(at(end, date), date);
    }
    [[nodiscard]] bool isWorkDay(Date date) const { return days->containsIndex(weekday(date)); }

    [[nodiscard]] bool isWorking(Date date) const {
        if (days && !isWorkDay(date)) return false;
        if (isMidnight(date) || (!start && !end)) return true;
        return isInHours(date);
    }

    /// Gives up after so many steps and returns nothing.
    static constexpr int kMostSteps = 60'000;

    [[nodiscard]] std::optional<Date> sum(Date receiver, const DateComponents& amounts) const {
        if (!days && !start && !end) return dateByAdding(receiver, amounts);
        std::optional<Date> cursor;
        const auto pass = [&](std::int64_t DateComponents::*unit, auto counts) {
            cursor = receiver;
            const std::int64_t amount = amounts.*unit;
            const std::int64_t target = amount < 0 ? -amount : amount;
            std::int64_t count = 0;
            for (int step = 0; count < target; ++step) {
                if (step == kMostSteps) return false;
                cursor = moved(*cursor, unit, amount < 0 ? -1 : 1);
                if (counts(*cursor, count, target)) ++count;
            }
            return true;
        };
        const auto countsDay = [&](Date date, std::int64_t count, std::int64_t target) {
            return isWorkDay(date) || (isMidnight(receiver) && count == target - 1 &&
                                       weekday(date) == *days->lastIndex() + 1);
        };
        const auto countsTime = [&](Date date, std::int64_t, std::int64_t) {
            return !days || (isWorkDay(date) && isInHours(date));
        };
        bool ended = true;
        if (isDefined(amounts.day) && days) ended = pass(&DateComponents::day, countsDay);
        if (isDefined(amounts.hour) && start && end)
            ended = pass(&DateComponents::hour, countsTime);
        if (isDefined(amounts.minute) && start && end) {
            ended = pass(&DateComponents::minute, countsTime);
        }
        if (!ended) return std::nullopt;
        if (cursor) return cursor;
        cursor = dateByAdding(receiver, amounts);
        for (int step = 0; days && !isWorkDay(*cursor); ++step) {
            if (step == kMostSteps) return std::nullopt;
            cursor = moved(*cursor, &DateComponents::day, 1);
        }
        return cursor;
    }

    /// The counting of days, hours or minutes between two dates.
    [[nodiscard]] std::int64_t steps(Date from, Date to, std::int64_t DateComponents::*unit) const {
        std::int64_t count = 0;
        for (Date cursor = from; isBefore(cursor, to);) {
            cursor = moved(cursor, unit, 1);
            const bool isDays = unit == &DateComponents::day;
            const bool closes = days && isDays && isMidnight(from) && cursor == to &&
                                weekday(cursor) == *days->lastIndex() + 1;
            const bool isInTime = isDays || (!start && !end) || isInHours(cursor);
            if (!days || closes || (isWorkDay(cursor) && isInTime)) ++count;
        }
        return count;
    }

private:
    static Date dateByAdding(Date date, const DateComponents& amounts) {
        return sharedGregorianCalendar().dateByAddingComponents(amounts, date);
    }
};

}  // namespace QZCore::testing
