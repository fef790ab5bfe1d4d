// The readers of zone files and of rules for zones, and the zones made of what
// they read.
#include "QZCore/dates/calendar.h"
#include "platform/tabulated_zone.h"
#include "require.h"

using namespace QZCore;

namespace {

std::optional<ZoneTable> readTable(DataView bytes) {
    if (auto table = readZoneFile(bytes)) return table;
    auto rule = ZoneRule::fromString(textOf(bytes));
    if (!rule) return std::nullopt;
    return ZoneTable{.types = {{}}, .changes = {}, .typeOfChange = {}, .rule = std::move(rule)};
}

/// The periods around a second hold it and meet one another.
void checkPeriods(const TimeZone& zone, std::int64_t second) {
    const ZonePeriod period = zone.periodAt(second);
    require(period.begin <= second && (second < period.end || period.end == INT64_MAX));
    require(period.offset > -26 * 3600 - 1 && period.offset < 26 * 3600 + 1);
    if (period.end == INT64_MAX) return;
    require(zone.periodAt(period.end).begin == period.end);
    require(zone.periodAt(period.end - 1).begin == period.begin);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto table = readTable({data, size});
    if (!table) return 0;
    const auto zone = zoneFromTable(u"Fuzz", *table);
    const Calendar calendar(zone);
    // Steps of 1.7 times the last: from seconds to beyond every date.
    for (double second = 1; second < 9e18; second *= 1.7) {
        for (const double sign : {1.0, -1.0}) {
            checkPeriods(*zone, static_cast<std::int64_t>(sign * second));
            const Date date{sign * second};
            const DateComponents fields = calendar.components(
                kCalendarEra | kCalendarYear | kCalendarMonth | kCalendarDay | kCalendarHour, date);
            (void)calendar.dateFromComponents(fields);
            (void)calendar.dateByAddingComponents({.month = 1, .day = 1}, date);
        }
    }
    for (const std::int64_t farthest : {INT64_MIN, INT64_MAX}) checkPeriods(*zone, farthest);
    return 0;
}
