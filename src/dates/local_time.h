// Instants in whole seconds, and the local times that they are shown as.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/dates/date_components.h"
#include "QZCore/foundation/data.h"
#include "QZCore/platform/time_zone.h"
#include "foundation/civil_date.h"

namespace QZCore {

/// Sums that cannot overflow.
__extension__ using Wide = __int128;

/// No instant lies farther from 1970: a double holds all seconds up to here.
inline constexpr std::int64_t kFarthestSecond = 9'000'000'000'000'000;

/// A date as a whole second and the fraction, from 0 to below 1, behind it.
struct Instant {
    std::int64_t second = 0;
    double fraction = 0;

    [[nodiscard]] Date date() const { return {static_cast<double>(second) + fraction}; }

    friend auto operator<=>(const Instant&,
                            const Instant&) = default;  // NOLINT(modernize-use-nullptr)
};

/// The instant of a date; nothing when it is not a number or too far away.
[[nodiscard]] std::optional<Instant> instantOf(Date date);

/// Whether a second is near enough to be the one of an instant.
[[nodiscard]] constexpr bool isWithinReach(std::int64_t second) {
    return second >= -kFarthestSecond && second <= kFarthestSecond;
}

/// A day, counted from 1970, and the second of that day.
struct LocalTime {
    std::int64_t day = 0;
    std::int64_t second = 0;
};

/// The local time of an instant.
[[nodiscard]] LocalTime localTimeAt(const TimeZone& zone, std::int64_t second);

/// The second that is shown as the local time `local`, in seconds since the
/// start of 1970: the later one of two, and where there is none the one that
/// is shown as much later as local time was moved.
[[nodiscard]] std::int64_t secondOfLocalTime(const TimeZone& zone, std::int64_t local);

/// The second `days` days after `second`, with the same time of day if that
/// day has it.
[[nodiscard]] std::int64_t secondAfterDays(const TimeZone& zone, std::int64_t second,
                                           std::int64_t days);

/// The second that the fields of a date stand for, missing ones as on 1 January
/// of year 1; nothing when it is beyond reach.
[[nodiscard]] std::optional<std::int64_t> secondOfComponents(const TimeZone& zone,
                                                             const DateComponents& components);

}  // namespace QZCore
