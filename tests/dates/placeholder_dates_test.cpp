#include "QZCore/dates/placeholder_dates.h"

#include "QZCore/dates/dates.h"
#include "support/printing.h"
#include "support/time_scope.h"

namespace QZCore {

TEST_CASE("placeholders stand for relative dates, in every zone") {
    struct Kind {
        Date (*placeholder)(std::int64_t);
        Date (*target)(std::int64_t);
    };
    const Kind kinds[] = {
        {placeholderDateForDaysAgo, dateForDaysAgo},
        {placeholderDateForWeeksAgo, dateForWeeksAgo},
        {placeholderDateForMonthsAgo, dateForMonthsAgo},
        {placeholderDateForYearsAgo, dateForYearsAgo},
        {placeholderDateForDaysFromNow, dateForDaysFromNow},
        {placeholderDateForWeeksFromNow, dateForWeeksFromNow},
        {placeholderDateForMonthsFromNow, dateForMonthsFromNow},
        {placeholderDateForYearsFromNow, dateForYearsFromNow},
    };
    for (const StringView name : {u"Europe/Berlin", u"America/New_York", u"Asia/Kolkata", u"UTC"}) {
        const testing::ZoneScope zone(name);
        CHECK(dateForPlaceholderDate(placeholderDateForToday()) == dateForTodayAtMidnight());
        CHECK(dateForPlaceholderDate(placeholderDateForYesterday()) ==
              dateForYesterdayAtMidnight());
        CHECK(dateForPlaceholderDate(placeholderDateForTomorrow()) == dateForTomorrowAtMidnight());
        CHECK(dateForPlaceholderDate(placeholderDateForStartOfWeek()) == dateForStartOfWeek());
        CHECK(placeholderDateForDaysAgo(0) != placeholderDateForToday());
        for (const Kind& kind : kinds) {
            for (std::int64_t amount = 0; amount < 80; ++amount) {
                CAPTURE(amount);
                REQUIRE(dateForPlaceholderDate(kind.placeholder(amount)) ==
                        kind.target(amount % 60));
            }
        }
        const Date yesterdayAtNoon = dateForHoursAgo(12);
        CHECK(dateForPlaceholderDate(yesterdayAtNoon) == yesterdayAtNoon);
    }
}

TEST_CASE("stored placeholders are these instants") {
    const testing::ZoneScope zone(u"UTC");
    CHECK(placeholderDateForToday().secondsSince1970 == -62'167'219'200);
    CHECK(placeholderDateForTomorrow().secondsSince1970 == -62'167'219'197);
    CHECK(placeholderDateForDaysAgo(5).secondsSince1970 == -62'198'755'195);
    CHECK(placeholderDateForYearsFromNow(1).secondsSince1970 == -62'419'679'999);
    const Date madeInNewYork{-62'167'219'200 + 17'762};  // 4:56:02 later
    CHECK(dateForPlaceholderDate(madeInNewYork) == madeInNewYork);
}

}  // namespace QZCore
