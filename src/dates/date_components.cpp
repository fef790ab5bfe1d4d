#include "QZCore/dates/date_components.h"

namespace QZCore {

DateComponents DateComponents::dateComponentsWithYear(std::int64_t year) { return {.year = year}; }

DateComponents DateComponents::dateComponentsWithMonth(std::int64_t month) {
    return {.month = month};
}

DateComponents DateComponents::dateComponentsWithWeek(std::int64_t week) {
    return {.weekOfYear = week};
}

DateComponents DateComponents::dateComponentsWithDay(std::int64_t day) { return {.day = day}; }

DateComponents DateComponents::dateComponentsWithYear(std::int64_t year, std::int64_t month,
                                                      std::int64_t day) {
    return {.year = year, .month = month, .day = day};
}

DateComponents DateComponents::dateComponentsWithHour(std::int64_t hour) { return {.hour = hour}; }

DateComponents DateComponents::dateComponentsWithMinute(std::int64_t minute) {
    return {.minute = minute};
}

DateComponents DateComponents::dateComponentsWithSecond(std::int64_t second) {
    return {.second = second};
}

DateComponents DateComponents::dateComponentsWithHour(std::int64_t hour, std::int64_t minute,
                                                      std::int64_t second) {
    return {.hour = hour, .minute = minute, .second = second};
}

DateComponents DateComponents::dateComponentsWithYear(std::int64_t year, std::int64_t month,
                                                      std::int64_t day, std::int64_t hour,
                                                      std::int64_t minute, std::int64_t second) {
    return {
        .year = year, .month = month, .day = day, .hour = hour, .minute = minute, .second = second};
}

DateComponents DateComponents::startOfDay() { return dateComponentsWithHour(0, 0, 0); }

DateComponents DateComponents::endOfDay() { return dateComponentsWithHour(23, 59, 59); }

}  // namespace QZCore
