// Formatters of any locale and pattern, and what people type into them.
#include <cmath>
#include <cstring>

#include "QZCore/dates.h"
#include "require.h"

using namespace QZCore;

namespace {

/// The first bytes of an input as a number of any kind; zero when they are missing.
double takeDouble(DataView& bytes) {
    double number = 0;
    if (bytes.size() < sizeof number) return number;
    std::memcpy(&number, bytes.data(), sizeof number);
    bytes = bytes.subspan(sizeof number);
    return number;
}

String takeLine(StringView& rest) {
    const String line(rest.substr(0, rest.find(u'\n')));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    return line;
}

void formatDates(const DateFormatter& formatter, Date date, StringView typed) {
    const String text = formatter.stringFromDate(date);
    (void)formatter.dateFromString(text);
    (void)QZRelativeDateFormatter(formatter).stringForObjectValue(date);
    const auto read = formatter.dateFromString(typed);
    if (read) require(std::isfinite(read->secondsSince1970));
}

void useDates(StringView locale, StringView pattern, Date date, StringView typed) {
    DateFormatter formatter(locale);
    require(formatter.stringFromDate(date).empty());
    require(formatter.setCalendarIdentifier(formatter.calendarIdentifier()));
    const auto style = static_cast<DateFormatterStyle>(1 + typed.size() % 4);
    formatter.setDateStyle(style);
    formatter.setTimeStyle(style);
    const bool isWithinReach = std::abs(date.secondsSince1970) <= 1.8e14;
    require(isWithinReach || formatter.stringFromDate(date).empty());
    formatDates(formatter, date, typed);
    formatDates(formatter.setDateStyleOrFormat(pattern), date, typed);
    (void)formatter.setCalendarIdentifier(pattern);
    formatDates(formatter, date, typed);
}

void useNumbers(StringView locale, double number, StringView typed) {
    QZNumberFormatter formatter(locale);
    formatter.setNumberStyle(static_cast<NumberFormatterStyle>(typed.size() % 5));
    (void)formatter.stringFromNumber(number);
    formatter.setMinimum(-5);
    formatter.setMaximum(number);
    Value object(7);
    require(formatter.getObjectValue(object, typed) && object.isNumber());
    if (!typed.empty() && number >= -5) {
        require(object.doubleValue() >= -5 && object.doubleValue() <= number);
    }
    Range range{typed.size() % 3, typed.size()};
    require(formatter.getObjectValue(object, typed, range));
    require(typed.empty() || range.end() <= typed.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    DataView bytes(data, size);
    const double number = takeDouble(bytes);
    const String script = fromUTF8(textOf(bytes));
    StringView rest = script;
    const String locale = takeLine(rest);
    const String pattern = takeLine(rest);
    useDates(locale, pattern, Date{number}, rest);
    useNumbers(locale, number, rest);
    (void)QZFileSizeFormatter().stringForObjectValue(number);

    const auto utc = TimeZone::utc();
    if (const auto date = dateFromISO8601String(rest, *utc)) {
        const String again = iso8601String(*date, *utc, ISO8601Form::InternetDateTime);
        const auto whole = dateFromISO8601String(again, *utc);
        require(whole && whole->secondsSince1970 == std::floor(date->secondsSince1970));
    }
    return 0;
}
