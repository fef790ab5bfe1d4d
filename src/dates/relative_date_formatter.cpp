#include "QZCore/dates/relative_date_formatter.h"

#include <array>

#include "QZCore/dates/calendar.h"
#include "QZCore/platform/clock.h"
#include "QZCore/platform/string_table.h"

namespace QZCore {
namespace {

struct NamedDay {
    std::int64_t daysFromToday;
    StringView word;
};

constexpr std::array kNamedDays{
    NamedDay{0, u"Today"},
    NamedDay{-1, u"Yesterday"},
    NamedDay{1, u"Tomorrow"},
};

/// What the day of a date is called; empty when that is nothing special.
String wordForDay(Date date) {
    const Calendar calendar = gregorianCalendar();
    const Date now = sharedWallClock()->now();
    for (const NamedDay& row : kNamedDays) {
        DateComponents distance;
        distance.day = row.daysFromToday;
        if (calendar.isDate(date, calendar.dateByAddingComponents(distance, now))) {
            return sharedStringTable()->localizedString(row.word);
        }
    }
    return {};
}

String timeOfDay(Date date, DateFormatterStyle style) {
    DateFormatter formatter = DateFormatter::preferredLanguageDateFormatter();
    formatter.setTimeStyle(style);
    return formatter.stringFromDate(date);
}

}  // namespace

QZRelativeDateFormatter::QZRelativeDateFormatter(const DateFormatter& formatter)
    : DateFormatter(formatter) {}

String QZRelativeDateFormatter::stringForObjectValue(const Value& object) const {
    const Date* date = object.date();
    if (date == nullptr) return {};
    String word = wordForDay(*date);
    if (word.empty()) return stringFromDate(*date);
    if (timeStyle() == DateFormatterStyle::None) return word;
    return word + u' ' + timeOfDay(*date, timeStyle());
}

}  // namespace QZCore
