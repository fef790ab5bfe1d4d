// Rules for the years that no table of a zone lists: "daylight saving time
// begins on the last Sunday of March at 2:00".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "QZCore/platform/time_zone.h"

namespace QZCore {

/// A time zone in the form of the TZ variable, as POSIX and RFC 8536, section
/// 3.3.1, define it.
class ZoneRule {
public:
    /// Reads a rule; nothing when it is none.
    [[nodiscard]] static std::optional<ZoneRule> fromString(std::string_view text);

    /// The period that holds an instant. Periods reach from one change of the
    /// rule to the next.
    [[nodiscard]] ZonePeriod periodAt(std::int64_t secondsSince1970) const;

private:
    friend class ZoneRuleReader;

    /// An offset and its name.
    struct Time {
        std::string abbreviation;
        std::int32_t offset = 0;
    };

    /// A day of every year and the local time at which a change comes.
    struct Day {
        enum class Kind { Julian, Counted, Weekday };
        Kind kind = Kind::Weekday;
        int month = 1;    // 1 to 12
        int week = 1;     // 1 to 5; 5 is the last
        int weekday = 0;  // 0 is Sunday
        int number = 0;   // 1 to 365 without 29 February, or 0 to 365 with it
        std::int32_t time = 2 * 3600;

        [[nodiscard]] std::int64_t dayIn(std::int64_t year) const;
    };

    [[nodiscard]] std::int64_t startIn(std::int64_t year) const;
    [[nodiscard]] std::int64_t endIn(std::int64_t year) const;
    [[nodiscard]] ZonePeriod period(bool isDaylightSaving, std::int64_t begin,
                                    std::int64_t end) const;

    Time standard_;
    std::optional<Time> daylight_;
    Day start_;
    Day end_;
};

}  // namespace QZCore
