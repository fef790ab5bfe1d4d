// Time zones: how far local time is from UTC, and since when.
//
// A zone is read once from the system's zone files, which are kept up to date,
// and never changes. Its offsets are told period by period, so that whoever
// works on long stretches of time need not ask for every instant. Every
// operation may be called from any thread.
#pragma once

#include <cstdint>
#include <memory>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A stretch of time over which a zone has one offset, or at least nothing
/// changes that is known.
struct ZonePeriod {
    /// Its first second since 1970, or INT64_MIN when it has no beginning.
    std::int64_t begin = INT64_MIN;
    /// The second behind its last, or INT64_MAX when it has no end.
    std::int64_t end = INT64_MAX;
    /// Seconds to add to UTC to get local time.
    std::int32_t offset = 0;
    /// Whether daylight saving time holds.
    bool isDaylightSaving = false;
    /// What the zone is called then, as "CEST" or "+03". Valid as long as the
    /// zone.
    std::string_view abbreviation;
};

/// The rules of one time zone.
class QZ_EXPORT TimeZone {
public:
    virtual ~TimeZone();

    /// The zone's name, as "Europe/Berlin".
    [[nodiscard]] virtual StringView identifier() const = 0;

    /// The period that holds the second `secondsSince1970`. Neighbouring
    /// periods may have the same offset. The rules that the zone file gives for
    /// the future are taken to hold for ever. From the year 2500 on a zone
    /// must repeat itself every 400 years: long walks rely on it.
    [[nodiscard]] virtual ZonePeriod periodAt(std::int64_t secondsSince1970) const = 0;

    /// The zone with that name in the system's zone files, or the one that a
    /// POSIX rule as "CET-1CEST,M3.5.0,M10.5.0/3" describes; null when there is
    /// neither.
    [[nodiscard]] static std::shared_ptr<const TimeZone> timeZoneWithName(StringView name);

    /// UTC, under that name.
    [[nodiscard]] static std::shared_ptr<const TimeZone> utc();
};

/// The process's time zone: the one that the environment variable TZ names, else
/// the one that the system is set to, else UTC. A TZ that names no zone means
/// UTC. It is read once; an application or a test may set another.
[[nodiscard]] QZ_EXPORT std::shared_ptr<const TimeZone> sharedTimeZone();

/// Makes `timeZone` the process's one and returns the one set before. An empty
/// pointer stands for the default, in both directions.
QZ_EXPORT std::shared_ptr<const TimeZone> setSharedTimeZone(
    std::shared_ptr<const TimeZone> timeZone);

}  // namespace QZCore
