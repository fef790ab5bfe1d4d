#include "QZCore/dates/calendar.h"

#include <stdlib.h>
#include <time.h>

#include <cmath>
#include <random>

#include "QZCore/dates/dates.h"
#include "support/printing.h"
#include "support/time_scope.h"

namespace QZCore {
namespace {

using testing::ZoneScope;

constexpr std::uint32_t kAll = kCalendarYear | kCalendarMonth | kCalendarDay | kCalendarHour |
                               kCalendarMinute | kCalendarSecond | kCalendarWeekday;

/// The system's own view of a zone, which this thread then uses.
class SystemZone {
public:
    explicit SystemZone(const std::string& name) {
        (void)sharedTimeZone();  // reads the process's own one
        if (const char* before = getenv("TZ")) before_ = before;
        setenv("TZ", name.c_str(), 1);
        tzset();
    }
    ~SystemZone() {
        before_ ? setenv("TZ", before_->c_str(), 1) : unsetenv("TZ");
        tzset();
    }
    SystemZone(const SystemZone&) = delete;
    SystemZone& operator=(const SystemZone&) = delete;

private:
    std::optional<std::string> before_;
};

/// "2018-11-04 01:00:00", as the shared calendar shows a date.
std::string shown(Date date) {
    const DateComponents fields = components(date, kAll | kCalendarEra);
    char text[80];
    std::snprintf(text, sizeof text, "%s%04d-%02d-%02d %02d:%02d:%02d",
                  fields.era == 0 ? "BC " : "", static_cast<int>(fields.year),
                  static_cast<int>(fields.month), static_cast<int>(fields.day),
                  static_cast<int>(fields.hour), static_cast<int>(fields.minute),
                  static_cast<int>(fields.second));
    return text;
}

Date at(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t hour = 0,
        std::int64_t minute = 0, std::int64_t second = 0) {
    return *dateFromComponents(
        DateComponents::dateComponentsWithYear(year, month, day, hour, minute, second));
}

}  // namespace

TEST_CASE("zones and fields are those of the system") {
    std::mt19937_64 random(1);
    for (const char* name :
         {"America/New_York", "Europe/Dublin", "Australia/Lord_Howe", "America/St_Johns",
          "Pacific/Apia", "Africa/Casablanca", "America/Nuuk", "Asia/Kolkata", "UTC",
          "IST-1GMT0,M10.5.0,M3.5.0/1", "EST5EDT,J60/0,300/25", "AAA3"}) {
        // The system begins to apply a rule in 1971, which holds for ever here.
        const bool isRule = std::string_view(name).find_first_of(",3") != std::string_view::npos;
        const std::int64_t earliest = isRule ? 40'000'000 : -4'000'000'000;
        const SystemZone system(name);
        const ZoneScope zone(fromUTF8(name));
        for (int i = 0; i < 3000; ++i) {
            auto second = static_cast<std::int64_t>(random() % 14'000'000'000) + earliest;
            const ZonePeriod around = zone.zone().periodAt(second);
            if (i % 2 == 0 && around.end != INT64_MAX) second = around.end - 1 + i / 2 % 2;
            const ZonePeriod period = zone.zone().periodAt(second);
            const time_t time = second;
            tm local{};
            localtime_r(&time, &local);
            CAPTURE(name);
            CAPTURE(second);
            REQUIRE(period.offset == local.tm_gmtoff);
            REQUIRE(period.abbreviation == local.tm_zone);
            REQUIRE(period.isDaylightSaving == (local.tm_isdst > 0));
            const DateComponents fields = components({static_cast<double>(second)}, kAll);
            REQUIRE(fields.year == local.tm_year + 1900);
            REQUIRE(fields.month == local.tm_mon + 1);
            REQUIRE(fields.day == local.tm_mday);
            REQUIRE(fields.hour == local.tm_hour);
            REQUIRE(fields.minute == local.tm_min);
            REQUIRE(fields.second == local.tm_sec);
            REQUIRE(fields.weekday == local.tm_wday + 1);
        }
    }
}

TEST_CASE("the process's zone is the one that the system uses") {
    for (time_t time = 40'000'000; time < 10'000'000'000; time += 7'654'321) {
        tm local{};
        localtime_r(&time, &local);
        CAPTURE(time);
        REQUIRE(sharedTimeZone()->periodAt(time).offset == local.tm_gmtoff);
    }
}

TEST_CASE("days keep the time of day, and hours are elapsed time, over every change") {
    struct Row {
        const char* why;
        StringView zone;
        std::array<std::int64_t, 5> from;
        DateComponents amounts;
        const char* sum;
    };
    const auto days = DateComponents::dateComponentsWithDay;
    const DateComponents anHour{.hour = 1};
    const auto months = DateComponents::dateComponentsWithMonth;
    const Row rows[] = {
        {"over a skipped hour",
         u"Europe/Berlin",
         {2026, 3, 29, 1, 30},
         anHour,
         "2026-03-29 03:30:00"},
        {"into a skipped hour",
         u"Europe/Berlin",
         {2026, 3, 28, 2, 30},
         days(1),
         "2026-03-29 03:30:00"},
        {"back into it", u"Europe/Berlin", {2026, 3, 30, 2, 30}, days(-1), "2026-03-29 03:30:00"},
        {"over it", u"Europe/Berlin", {2026, 3, 28, 12, 0}, days(1), "2026-03-29 12:00:00"},
        {"a doubled hour is later",
         u"Europe/Berlin",
         {2026, 10, 25, 2, 30},
         anHour,
         "2026-10-25 03:30:00"},
        {"the first of two, by days",
         u"Europe/Berlin",
         {2026, 10, 24, 2, 30},
         {.day = 1, .hour = 1},
         "2026-10-25 02:30:00"},
        {"a midnight that does not exist",
         u"America/Sao_Paulo",
         {2018, 11, 3, 0, 0},
         days(1),
         "2018-11-04 01:00:00"},
        {"a day that does not exist",
         u"Pacific/Apia",
         {2011, 12, 29, 9, 0},
         days(1),
         "2011-12-31 09:00:00"},
        {"half an hour",
         u"Australia/Lord_Howe",
         {2026, 4, 4, 1, 45},
         days(1),
         "2026-04-05 01:45:00"},
        {"the last of a month", u"UTC", {2024, 1, 31, 0, 0}, months(1), "2024-02-29 00:00:00"},
        {"before it", u"UTC", {2024, 3, 31, 0, 0}, months(-1), "2024-02-29 00:00:00"},
        {"a leap day", u"UTC", {2024, 2, 29, 0, 0}, {.year = 1, .month = 1}, "2025-03-28 00:00:00"},
        {"over the era",
         u"UTC",
         {1, 1, 1, 0, 0},
         DateComponents::dateComponentsWithYear(-2),
         "BC 0002-01-01 00:00:00"},
        {"weeks",
         u"UTC",
         {2026, 1, 1, 0, 0},
         DateComponents::dateComponentsWithWeek(-1),
         "2025-12-25 00:00:00"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const ZoneScope zone(row.zone);
        const Date from = at(row.from[0], row.from[1], row.from[2], row.from[3], row.from[4]);
        CHECK(shown(sharedGregorianCalendar().dateByAddingComponents(row.amounts, from)) ==
              row.sum);
    }
}

TEST_CASE("fields carry over, and what is missing is that of 1 January of year 1") {
    const ZoneScope zone(u"Europe/Berlin");
    const Calendar& calendar = sharedGregorianCalendar();
    CHECK(shown(*calendar.dateFromComponents({})) == "0001-01-01 00:00:00");
    CHECK(shown(at(2026, 14, 0, 25, -1, 61)) == "2027-02-01 01:00:01");
    CHECK(shown(at(2026, 3, 29, 2, 30)) == "2026-03-29 03:30:00");
    CHECK(at(2026, 10, 25, 2, 30).secondsSince1970 == 1792891800);
    CHECK(shown(calendar.replaceComponents(std::nullopt, at(2026, 1, 1))) ==
          "BC 0002-11-30 00:00:00");
    CHECK(shown(calendar.replaceComponents(DateComponents::dateComponentsWithMinute(7),
                                           at(2026, 1, 2, 3, 4, 5))) == "2026-01-02 03:07:05");
    CHECK_FALSE(calendar.dateFromComponents({.year = INT64_MAX - 1}));
    CHECK_FALSE(calendar.dateFromComponents({.month = INT64_MIN, .hour = INT64_MIN}));
    CHECK(calendar.hasEqualComponents({.year = 2026, .minute = 4}, at(2026, 1, 2, 3, 4)));
    CHECK_FALSE(calendar.hasEqualComponents({.year = 2026, .minute = 5}, at(2026, 1, 2, 3, 4)));
    CHECK_FALSE(calendar.hasEqualComponents({.weekday = 6}, at(2026, 1, 2)));
    CHECK(components(at(2026, 1, 4), kCalendarWeekOfYear).weekOfYear == 2);
    CHECK(components(at(2026, 12, 26), kCalendarWeekOfYear).weekOfYear == 52);
    CHECK(components(at(2026, 12, 27), kCalendarWeekOfYear).weekOfYear == 1);
    CHECK(components({-1e-20}, kCalendarNanosecond).nanosecond == 999'999'999);
    const Date firstOfTwo{1792888200};
    CHECK(calendar.dateByAddingComponents({.year = 0, .month = 0}, firstOfTwo) == firstOfTwo);
    for (const double seconds : {double{NAN}, 1e300, -1e17}) {
        CHECK(components({seconds}, kAll) == DateComponents());
    }
}

TEST_CASE("differences take as much of each unit as does not lead too far") {
    const ZoneScope zone(u"Europe/Berlin");
    std::mt19937_64 random(2);
    const Calendar& calendar = sharedGregorianCalendar();
    const std::pair<std::uint32_t, std::int64_t DateComponents::*> units[] = {
        {kCalendarYear, &DateComponents::year},
        {kCalendarMonth, &DateComponents::month},
        {kCalendarDay, &DateComponents::day},
        {kCalendarHour, &DateComponents::hour},
        {kCalendarMinute, &DateComponents::minute},
        {kCalendarWeekOfYear, &DateComponents::weekOfYear},
    };
    for (int i = 0; i < 3000; ++i) {
        const auto date = [&] {
            const auto second = static_cast<double>(random() % 3'000'000'000);
            return Date{second + (random() % 2 == 0 ? 0.5 : 0.0)};
        };
        const Date from = date();
        const Date to = date();
        // No structured binding: a lambda may not capture one.
        const auto& chosen = units[random() % std::size(units)];
        const std::uint32_t unit = chosen.first;
        const auto field = chosen.second;
        const std::int64_t amount = calendar.components(unit, from, to).*field;
        const auto sum = [&](std::int64_t more) {
            DateComponents amounts;
            amounts.*field = amount + more;
            return calendar.dateByAddingComponents(amounts, from).secondsSince1970;
        };
        const bool isForward = from.secondsSince1970 <= to.secondsSince1970;
        REQUIRE((isForward ? sum(0) <= to.secondsSince1970 : sum(0) >= to.secondsSince1970));
        REQUIRE((isForward ? sum(1) > to.secondsSince1970 : sum(-1) < to.secondsSince1970));
    }
    const auto months =
        calendar.components(kCalendarMonth | kCalendarDay, at(2024, 1, 31), at(2024, 2, 29));
    CHECK(months == DateComponents{.month = 1, .day = 0});
}

TEST_CASE("dates around today") {
    const ZoneScope zone(u"America/St_Johns");
    const testing::FixedNow now(at(2026, 3, 8, 13, 14, 15));  // a Sunday
    CHECK(shown(dateForTodayAtMidnight()) == "2026-03-08 00:00:00");
    CHECK(shown(dateForYesterdayAtMidnight()) == "2026-03-07 00:00:00");
    CHECK(shown(dateForTomorrowAtMidnight()) == "2026-03-09 00:00:00");
    CHECK(dateForStartOfWeek() == dateForTodayAtMidnight());
    CHECK(shown(dateForHoursAgo(13)) == "2026-03-07 23:14:15");
    CHECK(shown(dateForMonthsAgo(1)) == "2026-02-08 00:00:00");
    CHECK(shown(dateForYearsFromNow(1)) == "2027-03-08 00:00:00");
    CHECK(shown(dateForWeeksFromNow(2)) == "2026-03-22 00:00:00");
    CHECK(daysFromToday(at(2026, 3, 1, 23)) == -7);
    CHECK(monthsFromToday(at(2026, 5, 7)) == 1);
    CHECK(yearsFromToday(at(2024, 3, 7)) == -2);
    CHECK(dateForDaysAgo(INT64_MIN) == dateForTodayAtMidnight());
    const Date date = at(2026, 1, 2, 23, 59, 59);
    CHECK(isEndOfDay(date));
    CHECK(isMidnight(dateWithNoTime(date)));
    CHECK(shown(dateWithNoSeconds(date)) == "2026-01-02 23:59:00");
    CHECK(shown(dateWithNoDate(date)) == "0001-01-01 23:59:59");
    CHECK(shown(endOfPreviousDay(date)) == "2026-01-01 23:59:59");
    CHECK(shown(dateWithReplacedTime(date, at(2000, 1, 1, 4, 5, 6))) == "2026-01-02 04:05:06");
    CHECK(isSameTimeAsDate(date, at(1999, 1, 2, 23, 59, 59)));
    CHECK(currentTimeInMilliseconds() == 1772984655000);
    const testing::FixedNow never({NAN});
    CHECK(currentTimeInMilliseconds() == 0);
}

TEST_CASE("zones by name, by rule, and none") {
    CHECK(TimeZone::timeZoneWithName(u"Nowhere/Land") == nullptr);
    CHECK(TimeZone::timeZoneWithName(u"../../etc/passwd") == nullptr);
    CHECK(TimeZone::timeZoneWithName(u"") == nullptr);
    CHECK(TimeZone::timeZoneWithName(u"/usr/share/zoneinfo/UTC") == nullptr);
    const auto rule = TimeZone::timeZoneWithName(u"<-02>2<-01>,M3.5.0/-1,M10.5.0/0");
    REQUIRE(rule != nullptr);
    const auto nuuk = TimeZone::timeZoneWithName(u"America/Nuuk");
    for (std::int64_t second = 3'000'000'000; second < 30'000'000'000; second += 7'777'777) {
        REQUIRE(rule->periodAt(second).offset == nuuk->periodAt(second).offset);
    }
    // Both changes of a year come in the year before it.
    const auto early = TimeZone::timeZoneWithName(u"AAA0BBB,J1/-100,J2/-100");
    REQUIRE(early != nullptr);
    const ZonePeriod daylight = early->periodAt(1'798'405'200);
    CHECK(daylight.isDaylightSaving);
    CHECK(daylight.begin == 1'798'401'600);
    for (const StringView bad : {u"AB1", u"ABC", u"ABC25", u"ABC1DEF,M13.1.0,M1.1.0",
                                 u"ABC1DEF,M3.1.0", u"ABC1DEF,J0,J1", u"ABC1DEF,M3.1.0,M4.1.0x"}) {
        CAPTURE(bad);
        CHECK(TimeZone::timeZoneWithName(bad) == nullptr);
    }
}

}  // namespace QZCore
