#include "QZCore/dates/calendar.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "dates/local_time.h"
#include "foundation/civil_date.h"

namespace QZCore {
namespace {

constexpr std::uint32_t kDayAndTime = kCalendarYear | kCalendarMonth | kCalendarDay |
                                      kCalendarHour | kCalendarMinute | kCalendarSecond;

/// Days of the year before `day`, counted from 0.
std::int64_t dayOfYear(std::int64_t day) {
    return day - daysFromCivil({civilFromDays(day).year, 1, 1});
}

std::int64_t weekOfYear(std::int64_t day) {
    const int firstWeekday = weekdayOfDay(day - dayOfYear(day));
    return (dayOfYear(day) + firstWeekday - 1) / 7 + 1;
}

/// The second `months` months after `second`, on the same day of the month or
/// its last.
std::optional<std::int64_t> secondAfterMonths(const TimeZone& zone, std::int64_t second,
                                              std::int64_t months) {
    constexpr std::int64_t kMostMonths = kFarthestSecond / kSecondsPerDay;
    if (months > kMostMonths || months < -kMostMonths) return std::nullopt;
    const LocalTime local = localTimeAt(zone, second);
    const CivilDate date = civilFromDays(local.day);
    const std::int64_t sum = date.year * 12 + date.month - 1 + months;
    const std::int64_t year = floorDivided(sum, 12);
    const auto month = static_cast<int>(sum - year * 12) + 1;
    const int day = std::min(date.day, daysInMonth(year, month));
    const std::int64_t sumDay = daysFromCivil({year, month, day});
    if (sumDay > kFarthestSecond / kSecondsPerDay || sumDay < -kFarthestSecond / kSecondsPerDay) {
        return std::nullopt;
    }
    return secondOfLocalTime(zone, sumDay * kSecondsPerDay + local.second);
}

std::optional<std::int64_t> secondAfter(std::int64_t second, std::int64_t amount,
                                        std::int64_t unit) {
    const auto sum = Wide{amount} * unit + second;
    if (sum > kFarthestSecond || sum < -kFarthestSecond) return std::nullopt;
    return static_cast<std::int64_t>(sum);
}

/// The second that lies an amount of one unit after another.
std::optional<std::int64_t> secondAfter(const TimeZone& zone, std::int64_t second,
                                        std::uint32_t unit, std::int64_t amount) {
    switch (unit) {
        case kCalendarYear:
            if (amount > kFarthestSecond || amount < -kFarthestSecond) return std::nullopt;
            return secondAfterMonths(zone, second, amount * 12);
        case kCalendarMonth:
            return secondAfterMonths(zone, second, amount);
        case kCalendarWeekOfYear:
        case kCalendarDay: {
            const std::int64_t days = unit == kCalendarDay ? 1 : 7;
            if (!secondAfter(second, amount, days * kSecondsPerDay)) return std::nullopt;
            return secondAfterDays(zone, second, amount * days);
        }
        case kCalendarHour:
            return secondAfter(second, amount, 3600);
        case kCalendarMinute:
            return secondAfter(second, amount, 60);
        default:
            return secondAfter(second, amount, 1);
    }
}

struct UnitLength {
    std::uint32_t unit;
    std::int64_t DateComponents::*field;
    double seconds;  // about
};

constexpr UnitLength kUnits[] = {
    {kCalendarYear, &DateComponents::year, 365.2425 * kSecondsPerDay},
    {kCalendarMonth, &DateComponents::month, 365.2425 * kSecondsPerDay / 12},
    {kCalendarWeekOfYear, &DateComponents::weekOfYear, 7.0 * kSecondsPerDay},
    {kCalendarDay, &DateComponents::day, kSecondsPerDay},
    {kCalendarHour, &DateComponents::hour, 3600},
    {kCalendarMinute, &DateComponents::minute, 60},
    {kCalendarSecond, &DateComponents::second, 1},
};

/// Takes from `from` the most of one unit that does not lead beyond `to`, and
/// moves it by that.
std::int64_t takeUnit(const TimeZone& zone, const UnitLength& unit, Instant& from, Instant to) {
    const bool isForward = to >= from;
    const auto reaches = [&](std::int64_t amount) {
        const auto second = secondAfter(zone, from.second, unit.unit, amount);
        if (!second) return false;
        const Instant sum{*second, from.fraction};
        return isForward ? sum <= to : sum >= to;
    };
    const double about = static_cast<double>(to.second - from.second) / unit.seconds;
    const std::int64_t direction = isForward ? 1 : -1;
    // The estimate may be off by what months and days differ in length.
    std::int64_t amount = static_cast<std::int64_t>(about) - 2 * direction;
    if (amount * direction < 0) amount = 0;
    while (amount != 0 && !reaches(amount)) amount -= direction;
    while (reaches(amount + direction)) amount += direction;
    if (amount != 0) from.second = *secondAfter(zone, from.second, unit.unit, amount);
    return amount;
}

}  // namespace

Calendar::Calendar(std::shared_ptr<const TimeZone> timeZone) : timeZone_(std::move(timeZone)) {}

std::shared_ptr<const TimeZone> Calendar::timeZone() const {
    return timeZone_ == nullptr ? sharedTimeZone() : timeZone_;
}

DateComponents Calendar::components(std::uint32_t units, Date fromDate) const {
    const auto instant = instantOf(fromDate);
    if (!instant) return {};
    const LocalTime local = localTimeAt(*timeZone(), instant->second);
    const CivilDate date = civilFromDays(local.day);
    const bool isCommonEra = date.year >= 1;
    DateComponents result;
    const auto set = [&](std::uint32_t unit, std::int64_t DateComponents::*field,
                         std::int64_t value) {
        if ((units & unit) != 0) result.*field = value;
    };
    set(kCalendarEra, &DateComponents::era, isCommonEra ? 1 : 0);
    set(kCalendarYear, &DateComponents::year, isCommonEra ? date.year : 1 - date.year);
    set(kCalendarMonth, &DateComponents::month, date.month);
    set(kCalendarDay, &DateComponents::day, date.day);
    set(kCalendarHour, &DateComponents::hour, local.second / 3600);
    set(kCalendarMinute, &DateComponents::minute, local.second / 60 % 60);
    set(kCalendarSecond, &DateComponents::second, local.second % 60);
    set(kCalendarNanosecond, &DateComponents::nanosecond,
        static_cast<std::int64_t>(instant->fraction * 1e9));
    set(kCalendarWeekday, &DateComponents::weekday, weekdayOfDay(local.day));
    set(kCalendarWeekOfYear, &DateComponents::weekOfYear, weekOfYear(local.day));
    return result;
}

DateComponents Calendar::components(std::uint32_t units, Date fromDate, Date toDate) const {
    auto from = instantOf(fromDate);
    const auto to = instantOf(toDate);
    if (!from || !to) return {};
    const auto zone = timeZone();
    DateComponents difference;
    for (const UnitLength& unit : kUnits) {
        if ((units & unit.unit) != 0) difference.*unit.field = takeUnit(*zone, unit, *from, *to);
    }
    return difference;
}

std::optional<Date> Calendar::dateFromComponents(const DateComponents& components) const {
    const auto second = secondOfComponents(*timeZone(), components);
    if (!second) return std::nullopt;
    const bool hasFraction = isDefined(components.nanosecond);
    const double fraction = hasFraction ? static_cast<double>(components.nanosecond) / 1e9 : 0;
    return Date{static_cast<double>(*second) + fraction};
}

Date Calendar::dateByAddingComponents(const DateComponents& components, Date toDate) const {
    auto instant = instantOf(toDate);
    if (!instant) return toDate;
    const auto zone = timeZone();
    const auto add = [&](std::uint32_t unit, std::int64_t amount) {
        if (!instant || !isDefined(amount)) return;
        const auto second = secondAfter(*zone, instant->second, unit, amount);
        if (second) {
            instant->second = *second;
        } else {
            instant.reset();
        }
    };
    for (const UnitLength& unit : kUnits) {
        add(unit.unit, components.*unit.field);
        if (unit.unit == kCalendarWeekOfYear) add(kCalendarDay, components.weekday);
    }
    if (!instant) return toDate;
    if (isDefined(components.nanosecond)) {
        return {instant->date().secondsSince1970 +
                static_cast<double>(components.nanosecond) / 1e9};
    }
    return instant->date();
}

bool Calendar::isDate(Date date, Date inSameDayAsDate) const {
    const auto first = instantOf(date);
    const auto second = instantOf(inSameDayAsDate);
    if (!first || !second) return false;
    const auto zone = timeZone();
    return localTimeAt(*zone, first->second).day == localTimeAt(*zone, second->second).day;
}

bool Calendar::hasEqualComponents(const DateComponents& components, Date inDate) const {
    const DateComponents own = this->components(kDayAndTime, inDate);
    bool hasAny = false;
    for (const auto field :
         {&DateComponents::year, &DateComponents::month, &DateComponents::day,
          &DateComponents::hour, &DateComponents::minute, &DateComponents::second}) {
        if (!isDefined(components.*field)) continue;
        if (components.*field != own.*field) return false;
        hasAny = true;
    }
    return hasAny;
}

Date Calendar::replaceComponents(const std::optional<DateComponents>& components,
                                 Date inDate) const {
    DateComponents fields = this->components(kDayAndTime, inDate);
    for (const auto field :
         {&DateComponents::year, &DateComponents::month, &DateComponents::day,
          &DateComponents::hour, &DateComponents::minute, &DateComponents::second}) {
        if (!components) {
            fields.*field = 0;
        } else if (isDefined((*components).*field)) {
            fields.*field = (*components).*field;
        }
    }
    return dateFromComponents(fields).value_or(inDate);
}

const Calendar& sharedGregorianCalendar() {
    static const Calendar& calendar = *new Calendar;
    return calendar;
}

Calendar gregorianCalendar() { return Calendar(); }

}  // namespace QZCore
