#include "dates/icu_time_zone.h"

#include <algorithm>
#include <cmath>

#include "QZCore/platform/clock.h"
#include "dates/icu_text.h"
#include "dates/local_time.h"
#include "foundation/civil_date.h"

namespace QZCore {
namespace {

constexpr std::int32_t kMillisecondsPerSecond = 1000;

/// The offset of a zone at a time, as ICU takes it apart.
struct Offset {
    std::int32_t standard = 0;
    std::int32_t saving = 0;
};

/// The part of a period's offset that daylight saving adds. Zones whose rules
/// call winter the exception, as Ireland's, are named as if summer were it: so
/// what counts is not which period is the exception but which is ahead.
Offset offsetOf(const TimeZone& zone, const ZonePeriod& period) {
    std::int32_t standard = period.offset;
    const auto compareWith = [&](const ZonePeriod& neighbour) {
        if (neighbour.isDaylightSaving == period.isDaylightSaving) return;
        standard = std::min(standard, neighbour.offset);
    };
    if (period.begin != INT64_MIN) compareWith(zone.periodAt(period.begin - 1));
    if (period.end != INT64_MAX) compareWith(zone.periodAt(period.end));
    return {standard, period.offset - standard};
}

class SystemRules final : public icu::TimeZone {
public:
    explicit SystemRules(std::shared_ptr<const QZCore::TimeZone> zone)
        : icu::TimeZone(viewOf(zone->identifier())), zone_(std::move(zone)) {}

    [[nodiscard]] SystemRules* clone() const override { return new SystemRules(*this); }

    /// Whole milliseconds since 1970, in UTC or `local` time.
    void getOffset(UDate date, UBool local, std::int32_t& standard, std::int32_t& saving,
                   UErrorCode& status) const override {
        if (U_FAILURE(status) != 0) return;
        auto second = static_cast<std::int64_t>(std::floor(date / kMillisecondsPerSecond));
        if (local != 0) second = secondOfLocalTime(*zone_, second);
        const Offset offset = offsetOf(*zone_, zone_->periodAt(second));
        standard = offset.standard * kMillisecondsPerSecond;
        saving = offset.saving * kMillisecondsPerSecond;
    }

    // The parameters are ICU's.
    // NOLINTBEGIN(readability-function-size)

    /// The same for the fields of a local time; months count from 0.
    [[nodiscard]] std::int32_t getOffset(std::uint8_t era, std::int32_t year, std::int32_t month,
                                         std::int32_t day, std::uint8_t /*dayOfWeek*/,
                                         std::int32_t milliseconds,
                                         UErrorCode& status) const override {
        const std::int64_t civilYear = era == 0 ? 1 - std::int64_t{year} : year;
        const std::int64_t days = daysFromCivil({civilYear, month + 1, day});
        std::int32_t standard = 0;
        std::int32_t saving = 0;
        getOffset(
            static_cast<double>(days * kSecondsPerDay) * kMillisecondsPerSecond + milliseconds,
            /*local=*/1, standard, saving, status);
        return standard + saving;
    }
    [[nodiscard]] std::int32_t getOffset(std::uint8_t era, std::int32_t year, std::int32_t month,
                                         std::int32_t day, std::uint8_t dayOfWeek,
                                         std::int32_t milliseconds, std::int32_t /*monthLength*/,
                                         UErrorCode& status) const override {
        return getOffset(era, year, month, day, dayOfWeek, milliseconds, status);
    }

    // NOLINTEND(readability-function-size)

    /// Rules are the system's and stay as they are.
    void setRawOffset(std::int32_t /*offset*/) override {}
    [[nodiscard]] std::int32_t getRawOffset() const override {
        return offsetNow().standard * kMillisecondsPerSecond;
    }
    [[nodiscard]] UBool useDaylightTime() const override {
        const ZonePeriod period = zone_->periodAt(secondNow());
        const bool changes =
            period.end != INT64_MAX &&
            zone_->periodAt(period.end).isDaylightSaving != period.isDaylightSaving;
        return static_cast<UBool>(changes || offsetOf(*zone_, period).saving != 0);
    }
    [[nodiscard]] UBool inDaylightTime(UDate date, UErrorCode& status) const override {
        std::int32_t standard = 0;
        std::int32_t saving = 0;
        getOffset(date, /*local=*/0, standard, saving, status);
        return static_cast<UBool>(saving != 0);
    }

    [[nodiscard]] bool operator==(const icu::TimeZone& other) const override {
        const auto* rules = dynamic_cast<const SystemRules*>(&other);
        return rules != nullptr && rules->zone_ == zone_;
    }

    [[nodiscard]] static UClassID getStaticClassID() {
        static char identity = 0;
        return &identity;
    }
    [[nodiscard]] UClassID getDynamicClassID() const override { return getStaticClassID(); }

private:
    [[nodiscard]] static std::int64_t secondNow() {
        return instantOf(sharedWallClock()->now()).value_or(Instant{}).second;
    }
    [[nodiscard]] Offset offsetNow() const {
        return offsetOf(*zone_, zone_->periodAt(secondNow()));
    }

    std::shared_ptr<const QZCore::TimeZone> zone_;
};

}  // namespace

std::unique_ptr<icu::TimeZone> icuTimeZone(std::shared_ptr<const TimeZone> zone) {
    return std::make_unique<SystemRules>(std::move(zone));
}

}  // namespace QZCore
