#include "QZCore/dates/placeholder_dates.h"

#include <array>
#include <cmath>

#include "QZCore/dates/calendar.h"
#include "QZCore/dates/dates.h"

namespace QZCore {
namespace {

// Stored in documents: the years and seconds must not change.
constexpr std::int64_t kFixedYear = 1;

struct FixedKind {
    std::int64_t second;
    Date (*target)();
};

/// In the order in which they are tried.
constexpr std::array kFixedKinds{
    FixedKind{0, dateForTodayAtMidnight},
    FixedKind{1, dateForYesterdayAtMidnight},
    FixedKind{3, dateForTomorrowAtMidnight},
    FixedKind{2, dateForStartOfWeek},
};

struct RelativeKind {
    std::int64_t year;
    Date (*target)(std::int64_t);
};

constexpr std::array kRelativeKinds{
    RelativeKind{2, dateForDaysAgo},       RelativeKind{3, dateForWeeksAgo},
    RelativeKind{4, dateForMonthsAgo},     RelativeKind{5, dateForYearsAgo},
    RelativeKind{6, dateForDaysFromNow},   RelativeKind{7, dateForWeeksFromNow},
    RelativeKind{8, dateForMonthsFromNow}, RelativeKind{9, dateForYearsFromNow},
};

/// The placeholder of a kind; the farthest past for an amount that no date can
/// hold.
Date placeholder(std::int64_t year, std::int64_t second) {
    return sharedGregorianCalendar()
        .dateFromComponents({.era = 0,
                             .year = year,
                             .month = 1,
                             .day = 1,
                             .hour = 0,
                             .minute = 0,
                             .second = second,
                             .nanosecond = 0})
        .value_or(Date{-HUGE_VAL});
}

}  // namespace

Date placeholderDateForToday() { return placeholder(kFixedYear, 0); }
Date placeholderDateForYesterday() { return placeholder(kFixedYear, 1); }
Date placeholderDateForStartOfWeek() { return placeholder(kFixedYear, 2); }
Date placeholderDateForTomorrow() { return placeholder(kFixedYear, 3); }
Date placeholderDateForDaysAgo(std::int64_t days) { return placeholder(2, days); }
Date placeholderDateForWeeksAgo(std::int64_t weeks) { return placeholder(3, weeks); }
Date placeholderDateForMonthsAgo(std::int64_t months) { return placeholder(4, months); }
Date placeholderDateForYearsAgo(std::int64_t years) { return placeholder(5, years); }
Date placeholderDateForDaysFromNow(std::int64_t days) { return placeholder(6, days); }
Date placeholderDateForWeeksFromNow(std::int64_t weeks) { return placeholder(7, weeks); }
Date placeholderDateForMonthsFromNow(std::int64_t months) { return placeholder(8, months); }
Date placeholderDateForYearsFromNow(std::int64_t years) { return placeholder(9, years); }

Date dateForPlaceholderDate(Date date) {
    for (const FixedKind& kind : kFixedKinds) {
        if (date == placeholder(kFixedYear, kind.second)) return kind.target();
    }
    const DateComponents fields = components(date, kCalendarYear | kCalendarSecond);
    for (const RelativeKind& kind : kRelativeKinds) {
        if (fields.year == kind.year) return kind.target(fields.second);
    }
    return date;
}

}  // namespace QZCore
