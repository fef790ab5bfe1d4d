#include "platform/tabulated_zone.h"

#include <algorithm>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "foundation/civil_date.h"

namespace QZCore {
namespace {

/// The Gregorian calendar repeats every 400 years, weekdays included.
constexpr std::int64_t kCycle = kDaysPerEra * kSecondsPerDay;

/// Nothing is told apart beyond: sums with the length of a cycle do not
/// overflow up to here.
constexpr std::int64_t kFarthest = std::int64_t{1} << 60;
static_assert(kFarthest > kFarthestChange);

/// What the file's rule gives for the future is kept for one cycle of the
/// calendar, and repeats from then on.
class TabulatedZone final : public TimeZone {
public:
    TabulatedZone(String identifier, const ZoneTable& table) : identifier_(std::move(identifier)) {
        for (const ZoneTable::Type& type : table.types) {
            abbreviations_.push_back(type.abbreviation);
            types_.push_back({type.offset, type.isDaylightSaving});
        }
        changes_.push_back({INT64_MIN, 0});
        for (std::size_t i = 0; i < table.changes.size(); ++i) {
            changes_.push_back({table.changes[i], table.typeOfChange[i]});
        }
        if (table.rule) addCycle(*table.rule);
    }

    [[nodiscard]] StringView identifier() const override { return identifier_; }

    [[nodiscard]] ZonePeriod periodAt(std::int64_t secondsSince1970) const override {
        const std::int64_t near = std::clamp(secondsSince1970, -kFarthest, kFarthest);
        const std::int64_t shift =
            near < cycleEnd_ ? 0 : ((near - cycleEnd_) / kCycle + 1) * kCycle;
        const auto next = std::ranges::upper_bound(changes_, near - shift, {}, &Change::at);
        const Change& change = *(next - 1);
        const bool hasEnd = next != changes_.end() && near < kFarthest;
        return {change.at == INT64_MIN ? INT64_MIN : change.at + shift,
                hasEnd ? next->at + shift : INT64_MAX, types_[change.type].offset,
                types_[change.type].isDaylightSaving, abbreviations_[change.type]};
    }

private:
    struct Type {
        std::int32_t offset;
        bool isDaylightSaving;
    };

    /// When local time changed, and to which type.
    struct Change {
        std::int64_t at;
        std::size_t type;
    };

    std::size_t numberOf(const ZonePeriod& period) {
        for (std::size_t i = 0; i < types_.size(); ++i) {
            const bool isSame = types_[i].offset == period.offset &&
                                types_[i].isDaylightSaving == period.isDaylightSaving &&
                                abbreviations_[i] == period.abbreviation;
            if (isSame) return i;
        }
        types_.push_back({period.offset, period.isDaylightSaving});
        abbreviations_.emplace_back(period.abbreviation);
        return types_.size() - 1;
    }

    /// Adds what the rule gives after the last change, or in all years when
    /// there is none: one cycle, and the rest of the year before it.
    void addCycle(const ZoneRule& rule) {
        const bool isAlone = changes_.size() == 1;
        ZonePeriod period = rule.periodAt(isAlone ? kYear1 : changes_.back().at);
        if (isAlone) changes_.front().type = numberOf(period);
        if (period.end == INT64_MAX) return;
        cycleEnd_ = period.end + kCycle;
        for (std::int64_t at = period.end; at < cycleEnd_ + 2 * kYear; at = period.end) {
            period = rule.periodAt(at);
            changes_.push_back({at, numberOf(period)});
        }
    }

    static constexpr std::int64_t kYear1 = daysFromCivil({1, 1, 1}) * kSecondsPerDay;
    static constexpr std::int64_t kYear = 366 * kSecondsPerDay;

    String identifier_;
    std::vector<Type> types_;
    std::deque<std::string> abbreviations_;  // never move
    std::vector<Change> changes_;            // the first has no beginning
    // From here on everything was one cycle before. A little more is kept, so
    // that the period that holds this second has its end.
    std::int64_t cycleEnd_ = INT64_MAX;
};

}  // namespace

std::shared_ptr<const TimeZone> zoneFromTable(String identifier, const ZoneTable& table) {
    return std::make_shared<TabulatedZone>(std::move(identifier), table);
}

}  // namespace QZCore
