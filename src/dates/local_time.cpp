#include "dates/local_time.h"

#include <algorithm>
#include <cmath>

namespace QZCore {
namespace {

// No zone is farther from UTC.
constexpr std::int64_t kLargestOffset = std::int64_t{26} * 3600;

std::int64_t valueOr(std::int64_t component, std::int64_t otherwise) {
    return isDefined(component) ? component : otherwise;
}

}  // namespace

std::optional<Instant> instantOf(Date date) {
    const double seconds = date.secondsSince1970;
    constexpr auto kFarthest = static_cast<double>(kFarthestSecond);
    if (!(seconds >= -kFarthest && seconds <= kFarthest)) return std::nullopt;
    const double whole = std::floor(seconds);
    // Next to a whole second the difference may round to 1.
    const double fraction = std::min(seconds - whole, std::nextafter(1.0, 0.0));
    return Instant{static_cast<std::int64_t>(whole), fraction};
}

LocalTime localTimeAt(const TimeZone& zone, std::int64_t second) {
    const std::int64_t local = second + zone.periodAt(second).offset;
    const std::int64_t day = floorDivided(local, kSecondsPerDay);
    return {day, local - day * kSecondsPerDay};
}

std::int64_t secondOfLocalTime(const TimeZone& zone, std::int64_t local) {
    // The periods that may show it, the last first.
    ZonePeriod period = zone.periodAt(local + kLargestOffset);
    while (true) {
        const std::int64_t second = local - period.offset;
        if (second >= period.begin) {
            // Behind the end of an earlier period it was skipped: the offset of
            // before moves it later.
            return second;
        }
        period = zone.periodAt(period.begin - 1);
    }
}

std::int64_t secondAfterDays(const TimeZone& zone, std::int64_t second, std::int64_t days) {
    const std::int64_t offset = zone.periodAt(second).offset;
    const std::int64_t plain = second + days * kSecondsPerDay;
    const std::int64_t plainOffset = zone.periodAt(plain).offset;
    // A change of whole days leaves the time of day as it is.
    const std::int64_t change = (offset - plainOffset) % kSecondsPerDay;
    if (change == 0) return plain;
    const std::int64_t moved = plain + change;
    const bool isShown = zone.periodAt(moved).offset == plainOffset;
    return isShown || change > 0 ? moved : plain;
}

std::optional<std::int64_t> secondOfComponents(const TimeZone& zone,
                                               const DateComponents& components) {
    constexpr Wide kFarthest = kFarthestSecond;
    const std::int64_t yearOfEra = valueOr(components.year, 1);
    const Wide year = components.era == 0 ? 1 - Wide{yearOfEra} : Wide{yearOfEra};
    const Wide months = year * 12 + valueOr(components.month, 1) - 1;
    if (months > kFarthest || months < -kFarthest) return std::nullopt;
    const std::int64_t civilYear = floorDivided(static_cast<std::int64_t>(months), 12);
    const auto month = static_cast<int>(static_cast<std::int64_t>(months) - civilYear * 12) + 1;
    const Wide days = Wide{daysFromCivil({civilYear, month, 1})} + valueOr(components.day, 1) - 1;
    const Wide local = days * kSecondsPerDay + Wide{valueOr(components.hour, 0)} * 3600 +
                       Wide{valueOr(components.minute, 0)} * 60 + valueOr(components.second, 0);
    if (local > kFarthest || local < -kFarthest) return std::nullopt;
    return secondOfLocalTime(zone, static_cast<std::int64_t>(local));
}

}  // namespace QZCore
