#include "QZCore/dates/work_time.h"

#include <cmath>
#include <random>

#include "support/log_capture.h"
#include "support/printing.h"
#include "support/stepped_work_time.h"
#include "support/time_scope.h"

namespace QZCore {
namespace {

using testing::SteppedWorkTime;
using testing::ZoneScope;

/// Zones in which clocks do what they can do: change by half an hour, at
/// midnight, by a day, not at all, in both hemispheres.
constexpr StringView kZones[] = {
    u"America/New_York",  u"Europe/Berlin",    u"Australia/Lord_Howe",
    u"America/Santiago",  u"America/St_Johns", u"Pacific/Apia",
    u"America/Sao_Paulo", u"Africa/Cairo",     u"UTC",
    u"Africa/Casablanca", u"Asia/Kolkata",     u"Antarctica/Troll",
};

Date on(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t hour = 0,
        std::int64_t minute = 0) {
    return *dateFromComponents(
        DateComponents::dateComponentsWithYear(year, month, day, hour, minute, 0));
}

const WorkDays kWeek{2, 3, 4, 5, 6};

class RandomQuestions {
public:
    std::int64_t below(std::int64_t limit) {
        return static_cast<std::int64_t>(random_() % static_cast<std::uint64_t>(limit));
    }

    /// A date near a change of the zone, or anywhere in two centuries.
    Date date(const TimeZone& zone) {
        std::int64_t second = below(6'000'000'000) - 2'500'000'000;
        if (below(2) == 0) {
            const ZonePeriod period = zone.periodAt(second);
            if (period.end != INT64_MAX) second = period.end + below(12 * 86'400) - 6 * 86'400;
        }
        constexpr std::int64_t kSteps[] = {1, 60, 1800, 3600, 86'400};
        const std::int64_t step = kSteps[below(5)];
        second -= second % step;
        if (below(3) == 0) second -= zone.periodAt(second).offset;
        return {static_cast<double>(second) + (below(6) == 0 ? 0.25 : 0.0)};
    }

    SteppedWorkTime workTime() {
        SteppedWorkTime result;
        if (below(5) != 0) {
            std::vector<std::uint64_t> days;
            for (std::uint64_t day = 1; day <= 7; ++day) {
                if (below(3) != 0) days.push_back(day);
            }
            if (below(20) == 0) days = {9};
            result.days = WorkDays(days);
        }
        if (below(4) != 0) result.start = time(6);
        if (below(4) != 0) result.end = time(24);
        return result;
    }

    DateComponents amounts() {
        DateComponents result;
        const auto amount = [&](std::int64_t most) { return below(2 * most) - most; };
        switch (below(6)) {
            case 0:
                result.day = amount(900);
                break;
            case 1:
                result.hour = amount(900);
                break;
            case 2:
                result.minute = amount(4000);
                break;
            case 3:
                result.day = amount(4);
                break;
            case 4:
                result.month = amount(5);
                break;
            default:
                result.day = amount(3);
                result.hour = amount(30);
                break;
        }
        return result;
    }

private:
    DateComponents time(std::int64_t latest) {
        DateComponents result;
        result.hour = below(20) == 0 ? kUndefinedDateComponent : below(latest + 1);
        result.minute = below(3) * 30;
        if (below(5) == 0) result.second = below(60);
        return result;
    }

    std::mt19937_64 random_{20260101};
};

}  // namespace

TEST_CASE("work time is what stepping through the calendar gives, in every zone") {
    RandomQuestions random;
    const testing::LogCapture log;
    for (const StringView name : kZones) {
        const ZoneScope zone(name);
        for (int i = 0; i < 120; ++i) {
            CAPTURE(toUTF8(name));
            CAPTURE(i);
            const SteppedWorkTime given = random.workTime();
            const DateComponents amounts = random.amounts();
            const Date from = random.date(zone.zone());
            CAPTURE(std::to_string(from.secondsSince1970));
            SteppedWorkTime stepped = given;
            stepped.normaliseFor(from);
            REQUIRE(isWorkingWithWorkDays(from, given.days, given.start, given.end) ==
                    stepped.isWorking(from));
            const auto sum = stepped.sum(from, amounts);
            const Date counted =
                dateByAddingComponents(from, amounts, given.days, given.start, given.end);
            if (sum) REQUIRE(counted == *sum);
            if (!sum && stepped.days && stepped.days->containsIndex(9)) REQUIRE(counted == from);

            const Date to{from.secondsSince1970 + static_cast<double>(random.below(200) * 3600) +
                          static_cast<double>(random.below(2) * 86'400 * random.below(300)) +
                          (random.below(5) == 0 ? 20.5 : 0.0)};
            const DateComponents distance =
                componentsToDate(from, to, given.days, given.start, given.end);
            for (const auto unit :
                 {&DateComponents::day, &DateComponents::hour, &DateComponents::minute}) {
                if (!isDefined(distance.*unit) || isSameDayAsDate(from, to)) continue;
                REQUIRE(distance.*unit == stepped.steps(from, to, unit));
            }
        }
    }
}

TEST_CASE("working days, hours and the ends of days") {
    const ZoneScope zone(u"Europe/Berlin");
    const auto day = [](std::int64_t days) { return DateComponents::dateComponentsWithDay(days); };
    const auto time = [](std::int64_t hour) {
        return DateComponents::dateComponentsWithHour(hour, 0, kUndefinedDateComponent);
    };
    // 5 January 2026 was a Monday.
    CHECK(dateByAddingComponents(on(2026, 1, 5), day(5), kWeek) == on(2026, 1, 10));
    CHECK(dateByAddingComponents(on(2026, 1, 5, 10), day(5), kWeek) == on(2026, 1, 12, 10));
    CHECK(dateByAddingComponents(on(2026, 1, 5), day(5), WorkDays{1, 2, 3, 4, 5, 6, 7}) ==
          on(2026, 1, 10));
    CHECK(componentsToDate(on(2026, 1, 5), on(2026, 1, 10), kWeek) == day(5));
    CHECK(componentsToDate(on(2026, 1, 5, 10), on(2026, 1, 10, 10), kWeek) == day(4));
    CHECK_FALSE(isWorkingWithWorkDays(on(2026, 1, 5, 9), kWeek, time(9), time(17)));
    CHECK(isWorkingWithWorkDays(on(2026, 1, 5, 9, 1), kWeek, time(9), time(17)));
    CHECK(isWorkingWithWorkDays(on(2026, 1, 5, 17), kWeek, time(9), time(17)));
    CHECK(isWorkingWithWorkDays(on(2026, 1, 5, 20), kWeek, time(9), time(17)));
    CHECK_FALSE(isWorkingWithWorkDays(on(2026, 1, 5, 10), kWeek, time(9)));
    DateComponents twoAmounts = day(2);
    twoAmounts.hour = 3;
    CHECK(dateByAddingComponents(on(2026, 1, 5, 16), twoAmounts, kWeek, time(9), time(17)) ==
          on(2026, 1, 6, 11));

    const auto distance = [](Date from, Date to) { return componentsToDate(from, to, kWeek); };
    const auto minutes = DateComponents::dateComponentsWithMinute;
    const Date nine = on(2026, 1, 5, 9);
    CHECK(distance(nine, on(2026, 1, 5, 11)) == DateComponents::dateComponentsWithHour(2));
    CHECK(distance(nine, on(2026, 1, 5, 10, 30)) == minutes(90));
    CHECK(distance(nine, on(2026, 1, 5, 8, 30)) == minutes(-30));
    CHECK(distance(nine, on(2026, 1, 4, 8, 30)) == minutes(0));
    CHECK(distance(nine, on(2027, 1, 5, 9)) == DateComponents::dateComponentsWithYear(1));
    CHECK(distance(nine, on(2026, 3, 5, 23)) == DateComponents::dateComponentsWithMonth(2));
    CHECK(distance(nine, on(2026, 1, 19, 9)) == DateComponents::dateComponentsWithWeek(2));
    // A time without a minute takes that of the instant, whose hour comes twice.
    const ZoneScope atMidnight(u"America/St_Johns");
    CHECK(componentsToDate({972'631'799.75}, {972'783'075.75}, WorkDays{2, 4, 5, 7}, std::nullopt,
                           DateComponents::dateComponentsWithHour(23)) == minutes(1381));
}

TEST_CASE("millions of years of work are so many cycles of the calendar") {
    const auto nine = DateComponents::dateComponentsWithHour(9, 0, 0);
    const auto five = DateComponents::dateComponentsWithHour(17, 0, 0);
    constexpr std::int64_t kWeeksOfCycle = 146'097 / 7;
    constexpr std::uint32_t kDay = kCalendarYear | kCalendarMonth | kCalendarDay;
    constexpr std::uint32_t kTime = kDay | kCalendarHour | kCalendarMinute;
    const auto isLaterBy = [](std::int64_t cycles, Date date, Date later, std::uint32_t units) {
        DateComponents fields = components(date, units);
        fields.year += cycles * 400;
        return components(later, units) == fields;
    };
    RandomQuestions random;
    for (const StringView name : {u"America/New_York", u"Europe/Berlin", u"America/Santiago"}) {
        const ZoneScope zone(name);
        for (int i = 0; i < 15; ++i) {
            CAPTURE(toUTF8(name));
            CAPTURE(i);
            const std::int64_t cycles = 1 + random.below(50'000);
            const Date day = on(2400 + random.below(300), 1 + random.below(12), 1);
            const auto addDays = [&](Date date, std::int64_t amount) {
                return dateByAddingComponents(date, {.day = amount}, WorkDays{5});
            };
            for (std::int64_t days = 2; days < 34; ++days) {
                const Date farDay = addDays(day, days + cycles * kWeeksOfCycle);
                REQUIRE(isLaterBy(cycles, addDays(day, days), farDay, kDay));
            }

            const Date from = dateByAddingComponents(day, {.hour = 10, .minute = random.below(60)});
            const auto addMinutes = [&](std::int64_t amount) {
                return dateByAddingComponents(from, {.minute = amount}, kWeek, nine, five);
            };
            const std::int64_t minutes = 1 + random.below(6'000'000);
            const std::int64_t allMinutes = minutes + cycles * kWeeksOfCycle * 5 * 8 * 60;
            const Date to = addMinutes(allMinutes);
            REQUIRE(isLaterBy(cycles, addMinutes(minutes), to, kTime));
            const auto distance = componentsToDate(from, to, kWeek, nine, five);
            if (isDefined(distance.minute)) REQUIRE(distance.minute == allMinutes);
            if (!isWorkingWithWorkDays(from, kWeek)) continue;
            const DateComponents back{.minute = -allMinutes};
            REQUIRE(dateByAddingComponents(to, back, kWeek, nine, five) == from);
        }
        const Date noon = on(2026, 1, 5, 12);
        const Date there = dateByAddingComponents(noon, {.day = 70'000'000'001}, kWeek);
        REQUIRE(dateByAddingComponents(there, {.day = -70'000'000'001}, kWeek) == noon);
        REQUIRE(componentsToDate(noon, there, kWeek).day == 70'000'000'001);
    }
}

TEST_CASE("amounts without end, dates beyond the calendar, and days that never come") {
    const ZoneScope zone(u"America/New_York");
    const auto nine = DateComponents::dateComponentsWithHour(9, 0, 0);
    const auto five = DateComponents::dateComponentsWithHour(17, 0, 0);
    const Date noon = on(2026, 1, 5, 12);
    for (const auto unit : {&DateComponents::day, &DateComponents::hour, &DateComponents::minute}) {
        for (const std::int64_t amount : {INT64_MAX - 1, INT64_MIN}) {
            const testing::LogCapture log;
            DateComponents amounts;
            amounts.*unit = amount;
            CHECK(dateByAddingComponents(noon, amounts, kWeek, nine, five) == noon);
            CHECK(log.lines().size() == 1);
        }
    }
    const auto minutes = DateComponents::dateComponentsWithMinute(1);
    for (const std::int64_t hour : {INT64_MIN, std::int64_t{-1} << 40, std::int64_t{1} << 40}) {
        const auto end = DateComponents::dateComponentsWithHour(hour);
        CHECK(isWorkingWithWorkDays(noon, kWeek, std::nullopt, end) == (hour > 0));
        CHECK(componentsToDate(noon, {8e15 + 77}, kWeek, std::nullopt, end) != DateComponents());
    }
    const testing::LogCapture log;
    CHECK(dateByAddingComponents(noon, minutes, WorkDays{0, 9}, nine, five) == noon);
    CHECK(dateByAddingComponents(noon, DateComponents::dateComponentsWithYear(1), WorkDays{8}) ==
          noon);
    CHECK(log.lines() == std::vector<String>(2, u"Work time never comes: the date stays as it is"));
    for (const double seconds : {double{NAN}, double{INFINITY}, -1e300}) {
        const Date date{seconds};
        CHECK_FALSE(isWorkingWithWorkDays(date, kWeek));
        CHECK(componentsToDate(date, noon, kWeek) == DateComponents());
        const double sum =
            dateByAddingComponents(date, minutes, kWeek, nine, five).secondsSince1970;
        CHECK(std::isnan(sum) == std::isnan(seconds));
    }
}

}  // namespace QZCore
