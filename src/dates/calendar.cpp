#include "QZCore/dates/calendar.h"

#include <utility>

#include "dates/calendar_units.h"
#include "dates/local_time.h"
#include "foundation/civil_date.h"

namespace QZCore {
namespace {

constexpr std::uint32_t kDayAndTime = kCalendarYear | kCalendarMonth | kCalendarDay |
                                      kCalendarHour | kCalendarMinute | kCalendarSecond;

constexpr std::int64_t DateComponents::*kDayAndTimeFields[] = {
    &DateComponents::year, &DateComponents::month,  &DateComponents::day,
    &DateComponents::hour, &DateComponents::minute, &DateComponents::second,
};

/// Days of the year before `day`, counted from 0.
std::int64_t dayOfYear(std::int64_t day) {
    return day - daysFromCivil({civilFromDays(day).year, 1, 1});
}

/// A week belongs to the year of its last day.
std::int64_t weekOfYear(std::int64_t day) {
    const std::int64_t saturday = day + 7 - weekdayOfDay(day);
    return dayOfYear(saturday) / 7 + 1;
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
    for (const AddedUnit& unit : kAddedUnits) {
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
    for (const AddedUnit& unit : kAddedUnits) {
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
    for (const auto field : kDayAndTimeFields) {
        if (!isDefined(components.*field)) continue;
        if (components.*field != own.*field) return false;
        hasAny = true;
    }
    return hasAny;
}

Date Calendar::replaceComponents(const std::optional<DateComponents>& components,
                                 Date inDate) const {
    DateComponents fields = this->components(kDayAndTime, inDate);
    for (const auto field : kDayAndTimeFields) {
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
