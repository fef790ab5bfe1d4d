#include "dates/calendar_units.h"

#include <algorithm>

#include "foundation/civil_date.h"

namespace QZCore {
namespace {

/// The second `months` months after `second`, on the same day of the month or
/// its last.
std::optional<std::int64_t> secondAfterMonths(const TimeZone& zone, std::int64_t second,
                                              std::int64_t months) {
    constexpr std::int64_t kFarthestDay = kFarthestSecond / kSecondsPerDay;
    const auto isFar = [](std::int64_t number) {
        return number > kFarthestDay || number < -kFarthestDay;
    };
    if (isFar(months)) return std::nullopt;
    const LocalTime local = localTimeAt(zone, second);
    const CivilDate date = civilFromDays(local.day);
    const std::int64_t sum = date.year * 12 + date.month - 1 + months;
    const std::int64_t year = floorDivided(sum, 12);
    const auto month = static_cast<int>(sum - year * 12) + 1;
    const int day = std::min(date.day, daysInMonth(year, month));
    const std::int64_t sumDay = daysFromCivil({year, month, day});
    if (isFar(sumDay)) return std::nullopt;
    return secondOfLocalTime(zone, sumDay * kSecondsPerDay + local.second);
}

/// The second after `amount` times `unit` elapsed seconds.
std::optional<std::int64_t> secondAfterElapsed(std::int64_t second, std::int64_t amount,
                                               std::int64_t unit) {
    const auto sum = Wide{amount} * unit + second;
    if (sum > kFarthestSecond || sum < -kFarthestSecond) return std::nullopt;
    return static_cast<std::int64_t>(sum);
}

}  // namespace

std::optional<std::int64_t> secondAfter(const TimeZone& zone, std::int64_t second,
                                        std::uint32_t unit, std::int64_t amount) {
    // Nothing moves the earlier of two equal local times to the later one.
    if (amount == 0) return second;
    switch (unit) {
        case kCalendarYear:
            if (amount > kFarthestSecond || amount < -kFarthestSecond) return std::nullopt;
            return secondAfterMonths(zone, second, amount * 12);
        case kCalendarMonth:
            return secondAfterMonths(zone, second, amount);
        case kCalendarWeekOfYear:
        case kCalendarDay: {
            const std::int64_t days = unit == kCalendarDay ? 1 : 7;
            if (!secondAfterElapsed(second, amount, days * kSecondsPerDay)) return std::nullopt;
            return secondAfterDays(zone, second, amount * days);
        }
        case kCalendarHour:
            return secondAfterElapsed(second, amount, 3600);
        case kCalendarMinute:
            return secondAfterElapsed(second, amount, 60);
        default:
            return secondAfterElapsed(second, amount, 1);
    }
}

std::int64_t takeUnit(const TimeZone& zone, const AddedUnit& unit, Instant& from, Instant to) {
    const bool isForward = to >= from;
    const auto reaches = [&](std::int64_t amount) {
        const auto second = secondAfter(zone, from.second, unit.unit, amount);
        if (!second) return false;
        const Instant sum{*second, from.fraction};
        return isForward ? sum <= to : sum >= to;
    };
    const double about = static_cast<double>(to.second - from.second) / unit.aboutSeconds;
    const std::int64_t direction = isForward ? 1 : -1;
    // The estimate may be off by what months and days differ in length.
    std::int64_t amount = static_cast<std::int64_t>(about) - 2 * direction;
    if (amount * direction < 0) amount = 0;
    while (amount != 0 && !reaches(amount)) amount -= direction;
    while (reaches(amount + direction)) amount += direction;
    if (amount != 0) from.second = *secondAfter(zone, from.second, unit.unit, amount);
    return amount;
}

}  // namespace QZCore
