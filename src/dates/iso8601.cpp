#include "QZCore/dates/iso8601.h"

#include "dates/local_time.h"
#include "foundation/civil_date.h"
#include "foundation/date_text.h"

namespace QZCore {
namespace {

constexpr std::int64_t kSecondsPerHour = 3600;

// A day with a time, a fraction of a second and an offset is shorter.
constexpr std::size_t kLongestText = 100;

// ---- Writing ----

std::string dateText(const CivilDate& date) {
    return yearText(date.year) + "-" + digits(date.month, 2) + "-" + digits(date.day, 2);
}

/// Hours, minutes and, if asked for or not 0, seconds.
std::string clockText(std::int64_t seconds, bool withSeconds) {
    std::string text = digits(seconds / kSecondsPerHour, 2) + ":" + digits(seconds / 60 % 60, 2);
    if (withSeconds || seconds % 60 != 0) text += ":" + digits(seconds % 60, 2);
    return text;
}

std::string offsetText(std::int64_t offset) {
    if (offset == 0) return "Z";
    return (offset < 0 ? "-" : "+") + clockText(offset < 0 ? -offset : offset, false);
}

// ---- Reading ----

/// The days since 1970.
std::optional<std::int64_t> takeDay(DateScanner& scanner) {
    const auto year = scanner.year();
    if (!year) return std::nullopt;
    const auto month = scanner.field('-', 1, 12);
    if (!month) return std::nullopt;
    const auto day = scanner.field('-', 1, daysInMonth(*year, *month));
    if (!day) return std::nullopt;
    return daysFromCivil({*year, *month, *day});
}

/// The fraction of a second behind a dot, if there is one.
std::optional<double> takeFraction(DateScanner& scanner) {
    if (!scanner.take('.')) return 0;
    double fraction = 0;
    double unit = 1;
    auto digit = scanner.number(1, 1);
    if (!digit) return std::nullopt;
    for (; digit; digit = scanner.number(1, 1)) {
        unit /= 10;
        fraction += unit * static_cast<double>(*digit);
    }
    return fraction;
}

/// The seconds of hours, minutes and, if they follow, seconds.
std::optional<std::int64_t> takeClock(DateScanner& scanner, std::int64_t hour) {
    const auto minute = scanner.field(':', 0, 59);
    if (!minute || hour > 23) return std::nullopt;
    const auto second = scanner.field(':', 0, 59);
    return hour * kSecondsPerHour + std::int64_t{*minute} * 60 + second.value_or(0);
}

/// The seconds that a zone is ahead of UTC. Absent when none follows.
struct Offset {
    std::optional<std::int64_t> seconds;
    bool isWellFormed = true;
};

Offset takeOffset(DateScanner& scanner) {
    if (scanner.atEnd()) return {};
    if (scanner.take('Z')) return {.seconds = 0};
    const bool isBehind = scanner.take('-');
    if (!isBehind && !scanner.take('+')) return {.seconds = {}, .isWellFormed = false};
    const auto hour = scanner.number(2, 2);
    const auto seconds = hour ? takeClock(scanner, *hour) : std::nullopt;
    if (!seconds) return {.seconds = {}, .isWellFormed = false};
    return {.seconds = isBehind ? -*seconds : *seconds};
}

}  // namespace

String iso8601String(Date date, const TimeZone& timeZone, ISO8601Form form) {
    const auto instant = instantOf(date);
    if (!instant) return {};
    const LocalTime local = localTimeAt(timeZone, instant->second);
    const std::string day = dateText(civilFromDays(local.day));
    if (form == ISO8601Form::FullDate) return fromUTF8(day);
    return fromUTF8(day + "T" + clockText(local.second, true) +
                    offsetText(timeZone.periodAt(instant->second).offset));
}

std::optional<Date> dateFromISO8601String(StringView text, const TimeZone& timeZone) {
    if (text.size() > kLongestText) return std::nullopt;
    const std::string bytes = toUTF8(text);
    DateScanner scanner(bytes);
    const auto day = takeDay(scanner);
    if (!day) return std::nullopt;
    std::int64_t local = *day * kSecondsPerDay;
    double fraction = 0;
    Offset offset;
    if (scanner.take('T') || scanner.take(' ')) {
        const auto hour = scanner.number(2, 2);
        const auto seconds = hour ? takeClock(scanner, *hour) : std::nullopt;
        const auto part = takeFraction(scanner);
        offset = takeOffset(scanner);
        if (!seconds || !part || !offset.isWellFormed) return std::nullopt;
        local += *seconds;
        fraction = *part;
    }
    if (!scanner.atEnd() || !isWithinReach(local)) return std::nullopt;
    const std::int64_t second =
        offset.seconds ? local - *offset.seconds : secondOfLocalTime(timeZone, local);
    return Instant{second, fraction}.date();
}

}  // namespace QZCore
