#include "QZCore/dates/iso8601.h"

#include "dates/local_time.h"
#include "foundation/civil_date.h"

namespace QZCore {
namespace {

String digits(std::int64_t value, std::size_t fewest) {
    const String text = integerString(value);
    return text.size() >= fewest ? text : String(fewest - text.size(), u'0') + text;
}

String yearText(std::int64_t year) {
    if (year < 0) return u'-' + digits(-year, 4);
    return (year > 9999 ? u"+" : u"") + digits(year, 4);
}

String dateText(const CivilDate& date) {
    return yearText(date.year) + u'-' + digits(date.month, 2) + u'-' + digits(date.day, 2);
}

/// Hours, minutes and, if asked for or not 0, seconds.
String clockText(std::int64_t seconds, bool withSeconds) {
    String text = digits(seconds / 3600, 2) + u':' + digits(seconds / 60 % 60, 2);
    if (withSeconds || seconds % 60 != 0) text += u':' + digits(seconds % 60, 2);
    return text;
}

String offsetText(std::int64_t offset) {
    if (offset == 0) return u"Z";
    const char16_t sign = offset < 0 ? u'-' : u'+';
    return sign + clockText(offset < 0 ? -offset : offset, /*withSeconds=*/false);
}

}  // namespace

String iso8601String(Date date, const TimeZone& timeZone, ISO8601Form form) {
    const auto instant = instantOf(date);
    if (!instant) return {};
    const LocalTime local = localTimeAt(timeZone, instant->second);
    const String day = dateText(civilFromDays(local.day));
    if (form == ISO8601Form::FullDate) return day;
    return day + u'T' + clockText(local.second, /*withSeconds=*/true) +
           offsetText(timeZone.periodAt(instant->second).offset);
}

}  // namespace QZCore
