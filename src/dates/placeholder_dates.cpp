#include "QZCore/dates/placeholder_dates.h"

#include <array>
#include <cmath>

#include "QZCore/dates/calendar.h"
#include "QZCore/dates/dates.h"

namespace QZCore {
namespace {

// Stored in documents: the years and the seconds of kinds must not change.

/// The year before the common era that names a kind.
enum KindYear : std::int64_t {
    kFixedKind = 1,
    kDaysAgo = 2,
    kWeeksAgo = 3,
    kMonthsAgo = 4,
    kYearsAgo = 5,
    kDaysFromNow = 6,
    kWeeksFromNow = 7,
    kMonthsFromNow = 8,
    kYearsFromNow = 9,
};

/// What the seconds of the fixed kind stand for.
enum FixedSecond : std::int64_t { kToday = 0, kYesterday = 1, kStartOfWeek = 2, kTomorrow = 3 };

struct FixedKind {
    FixedSecond second;
    Date (*target)();
};

/// In the order in which they are tried.
constexpr std::array kFixedKinds{
    FixedKind{kToday, dateForTodayAtMidnight},
    FixedKind{kYesterday, dateForYesterdayAtMidnight},
    FixedKind{kTomorrow, dateForTomorrowAtMidnight},
    FixedKind{kStartOfWeek, dateForStartOfWeek},
};

struct RelativeKind {
    KindYear year;
    Date (*target)(std::int64_t);
};

constexpr std::array kRelativeKinds{
    RelativeKind{kDaysAgo, dateForDaysAgo},
    RelativeKind{kWeeksAgo, dateForWeeksAgo},
    RelativeKind{kMonthsAgo, dateForMonthsAgo},
    RelativeKind{kYearsAgo, dateForYearsAgo},
    RelativeKind{kDaysFromNow, dateForDaysFromNow},
    RelativeKind{kWeeksFromNow, dateForWeeksFromNow},
    RelativeKind{kMonthsFromNow, dateForMonthsFromNow},
    RelativeKind{kYearsFromNow, dateForYearsFromNow},
};

/// The placeholder of a kind; the farthest past for an amount that no date can
/// hold.
Date placeholder(KindYear year, std::int64_t second) {
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

Date placeholderDateForToday() { return placeholder(kFixedKind, kToday); }
Date placeholderDateForYesterday() { return placeholder(kFixedKind, kYesterday); }
Date placeholderDateForStartOfWeek() { return placeholder(kFixedKind, kStartOfWeek); }
Date placeholderDateForTomorrow() { return placeholder(kFixedKind, kTomorrow); }
Date placeholderDateForDaysAgo(std::int64_t days) { return placeholder(kDaysAgo, days); }
Date placeholderDateForWeeksAgo(std::int64_t weeks) { return placeholder(kWeeksAgo, weeks); }
Date placeholderDateForMonthsAgo(std::int64_t months) { return placeholder(kMonthsAgo, months); }
Date placeholderDateForYearsAgo(std::int64_t years) { return placeholder(kYearsAgo, years); }
Date placeholderDateForDaysFromNow(std::int64_t days) { return placeholder(kDaysFromNow, days); }
Date placeholderDateForWeeksFromNow(std::int64_t weeks) {
    return placeholder(kWeeksFromNow, weeks);
}
Date placeholderDateForMonthsFromNow(std::int64_t months) {
    return placeholder(kMonthsFromNow, months);
}
Date placeholderDateForYearsFromNow(std::int64_t years) {
    return placeholder(kYearsFromNow, years);
}

Date dateForPlaceholderDate(Date date) {
    for (const FixedKind& kind : kFixedKinds) {
        if (date == placeholder(kFixedKind, kind.second)) return kind.target();
    }
    const DateComponents fields = components(date, kCalendarYear | kCalendarSecond);
    for (const RelativeKind& kind : kRelativeKinds) {
        if (fields.year == kind.year) return kind.target(fields.second);
    }
    return date;
}

}  // namespace QZCore
