// Dates in the form of ISO 8601, which programs exchange: "2024-03-01",
// "2024-03-01T14:05:00+01:00".
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/text.h"
#include "QZCore/platform/time_zone.h"

namespace QZCore {

/// What is written of a date.
enum class ISO8601Form : std::uint8_t {
    FullDate,          // year, month and day: "2024-03-01"
    InternetDateTime,  // with time and time zone: "2024-03-01T14:05:00Z"
};

/// The local date, or date and time, in a time zone. Seconds are whole; the zone
/// is "Z" where local time is UTC, else its offset. Years before 0 have a minus
/// sign (-0001 is 2 BC), those behind 9999 a plus sign. Empty for a date that is
/// not a number or too far away for the calendar.
[[nodiscard]] QZ_EXPORT String iso8601String(Date date, const TimeZone& timeZone, ISO8601Form form);

/// The date of a text in one of these forms: a day, with or without a time behind
/// a "T" or a blank; the time with or without seconds, a fraction of them and a
/// time zone. What has no zone is meant in `timeZone`. Nothing for any other
/// text, for a day that does not exist, and beyond the calendar.
[[nodiscard]] QZ_EXPORT std::optional<Date> dateFromISO8601String(StringView text,
                                                                  const TimeZone& timeZone);

}  // namespace QZCore
