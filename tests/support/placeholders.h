// The placeholder dates of all kinds.
#pragma once

#include <vector>

#include "QZCore/dates/placeholder_dates.h"

namespace QZCore::testing {

/// Those of the twelve kinds, with the amounts at both ends of their range.
inline std::vector<Date> allPlaceholderDates() {
    std::vector<Date> dates{placeholderDateForToday(), placeholderDateForYesterday(),
                            placeholderDateForStartOfWeek(), placeholderDateForTomorrow()};
    for (const std::int64_t amount : {0, 1, 59}) {
        for (const auto make : {placeholderDateForDaysAgo, placeholderDateForWeeksAgo,
                                placeholderDateForMonthsAgo, placeholderDateForYearsAgo,
                                placeholderDateForDaysFromNow, placeholderDateForWeeksFromNow,
                                placeholderDateForMonthsFromNow, placeholderDateForYearsFromNow}) {
            dates.push_back(make(amount));
        }
    }
    return dates;
}

}  // namespace QZCore::testing
