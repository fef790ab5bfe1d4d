// Runs a test in a time zone and, if it asks for one, at a moment of its own.
#pragma once

#include <doctest/doctest.h>

#include <memory>
#include <utility>

#include "QZCore/platform/clock.h"
#include "QZCore/platform/time_zone.h"

namespace QZCore::testing {

/// The named zone is the process's one while this lives.
class ZoneScope {
public:
    explicit ZoneScope(StringView name) : zone_(TimeZone::timeZoneWithName(name)) {
        REQUIRE(zone_ != nullptr);
        before_ = setSharedTimeZone(zone_);
    }
    ~ZoneScope() { setSharedTimeZone(before_); }
    ZoneScope(const ZoneScope&) = delete;
    ZoneScope& operator=(const ZoneScope&) = delete;

    [[nodiscard]] const TimeZone& zone() const { return *zone_; }

private:
    std::shared_ptr<const TimeZone> zone_;
    std::shared_ptr<const TimeZone> before_;
};

/// "Now" is one date while this lives.
class FixedNow {
public:
    explicit FixedNow(Date now) : before_(setSharedWallClock(std::make_shared<Stopped>(now))) {}
    ~FixedNow() { setSharedWallClock(before_); }
    FixedNow(const FixedNow&) = delete;
    FixedNow& operator=(const FixedNow&) = delete;

private:
    struct Stopped final : WallClock {
        explicit Stopped(Date date) : now_(date) {}
        [[nodiscard]] Date now() const override { return now_; }

    private:
        Date now_;
    };

    std::shared_ptr<const WallClock> before_;
};

}  // namespace QZCore::testing
