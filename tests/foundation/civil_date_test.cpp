#include "foundation/civil_date.h"

#include <doctest/doctest.h>

#include <chrono>

namespace QZCore {

TEST_CASE("days are counted as the standard library counts them") {
    namespace chrono = std::chrono;
    for (std::int64_t days = -12'600'000; days < 11'200'000; days += 101) {
        const chrono::year_month_day expected{chrono::sys_days{chrono::days{days}}};
        const CivilDate date = civilFromDays(days);
        REQUIRE(date.year == static_cast<int>(expected.year()));
        REQUIRE(date.month == static_cast<int>(static_cast<unsigned>(expected.month())));
        REQUIRE(date.day == static_cast<int>(static_cast<unsigned>(expected.day())));
        REQUIRE(daysFromCivil(date) == days);
    }
}

TEST_CASE("every day of eight hundred years follows the one before") {
    CivilDate date{-401, 12, 31};
    for (std::int64_t days = daysFromCivil(date); date.year < 401; ++days) {
        REQUIRE(civilFromDays(days) == date);
        if (++date.day <= daysInMonth(date.year, date.month)) continue;
        date.day = 1;
        date.month = date.month % 12 + 1;
        if (date.month == 1) ++date.year;
    }
}

TEST_CASE("days far away do not overflow") {
    for (const std::int64_t days : {-300'000'000'000'000, 300'000'000'000'000}) {
        CHECK(daysFromCivil(civilFromDays(days)) == days);
    }
}

}  // namespace QZCore
