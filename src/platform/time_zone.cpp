#include "QZCore/platform/time_zone.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "QZCore/foundation/files.h"
#include "foundation/civil_date.h"
#include "platform/shared_service.h"
#include "platform/zone_file.h"

namespace QZCore {
namespace {

constexpr std::string_view kZoneFolder = "/usr/share/zoneinfo/";
constexpr const char* kSystemZone = "/etc/localtime";
constexpr std::size_t kLongestFile = 1 << 20;

/// The Gregorian calendar repeats every 400 years, weekdays included.
constexpr std::int64_t kCycle = kDaysPerEra * 86'400;

/// A zone from a file. What the file's rule gives for the future is kept for
/// one cycle of the calendar, and repeats from then on.
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
        const bool isBeyond = secondsSince1970 >= cycleEnd_;
        const std::int64_t shift =
            isBeyond ? ((secondsSince1970 - cycleEnd_) / kCycle + 1) * kCycle : 0;
        const std::int64_t at = secondsSince1970 - shift;
        const auto next = std::ranges::upper_bound(changes_, at, {}, &Change::at);
        const Change& change = *(next - 1);
        const bool hasEnd = next != changes_.end();
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

    /// Adds what the rule gives after the last change: one cycle, and the rest
    /// of the year before it.
    void addCycle(const ZoneRule& rule) {
        std::int64_t at = changes_.back().at;
        ZonePeriod period = rule.periodAt(at == INT64_MIN ? 0 : at);
        if (period.end == INT64_MAX) {
            changes_.push_back({at == INT64_MIN ? 0 : at, numberOf(period)});
            if (at == INT64_MIN) changes_.front().type = changes_.back().type;
            return;
        }
        if (at == INT64_MIN) changes_.front().type = numberOf(period);
        cycleEnd_ = period.end + kCycle;
        for (at = period.end; at < cycleEnd_ + 2 * kYear; at = period.end) {
            period = rule.periodAt(at);
            changes_.push_back({at, numberOf(period)});
        }
    }

    static constexpr std::int64_t kYear = std::int64_t{366} * 86'400;

    String identifier_;
    std::vector<Type> types_;
    std::deque<std::string> abbreviations_;  // never move
    std::vector<Change> changes_;            // the first has no beginning
    // From here on everything was one cycle before. A little more is kept, so
    // that the period that holds this second has its end.
    std::int64_t cycleEnd_ = INT64_MAX;
};

/// Whether a name can only lead into the folder of zones.
bool isPlainName(std::string_view name) {
    const bool isPlain = std::ranges::all_of(name, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_' || c == '+' || c == '-' || c == '/';
    });
    return isPlain && !name.empty() && name[0] != '/';
}

std::shared_ptr<const TimeZone> zoneFromFile(const std::string& path, std::string_view name) {
    const auto bytes = readFile(path, kLongestFile);
    if (!bytes) return nullptr;
    const auto table = readZoneFile(*bytes);
    if (!table) return nullptr;
    return std::make_shared<TabulatedZone>(fromUTF8(name), *table);
}

std::shared_ptr<const TimeZone> zoneFromRule(std::string_view text, std::string_view name) {
    auto rule = ZoneRule::fromString(text);
    if (!rule) return nullptr;
    const ZoneTable table{.types = {{}}, .changes = {}, .typeOfChange = {}, .rule = rule};
    return std::make_shared<TabulatedZone>(fromUTF8(name), table);
}

std::shared_ptr<const TimeZone> zoneNamed(std::string_view name) {
    if (isPlainName(name)) {
        const std::string path = std::string(kZoneFolder).append(name);
        if (auto zone = zoneFromFile(path, name)) return zone;
    }
    return zoneFromRule(name, name);
}

/// The name of the zone that the system's link leads to.
std::string nameOfSystemZone() {
    std::array<char, 4096> target;
    const ssize_t length = readlink(kSystemZone, target.data(), target.size());
    const std::string_view path(target.data(), length < 0 ? 0 : static_cast<std::size_t>(length));
    const std::size_t folder = path.find("zoneinfo/");
    if (folder == std::string_view::npos) return "local";
    return std::string(path.substr(folder + std::string_view("zoneinfo/").size()));
}

std::shared_ptr<const TimeZone> processZone() {
    if (const char* variable = std::getenv("TZ")) {
        std::string_view name = variable;
        if (!name.empty() && name[0] == ':') name.remove_prefix(1);
        const bool isPath = !name.empty() && name[0] == '/';
        auto zone = isPath ? zoneFromFile(std::string(name), name) : zoneNamed(name);
        return zone == nullptr ? TimeZone::utc() : zone;
    }
    auto zone = zoneFromFile(kSystemZone, nameOfSystemZone());
    return zone == nullptr ? TimeZone::utc() : zone;
}

SharedService<const TimeZone>& sharedZone() {
    static auto& service = *new SharedService<const TimeZone>(processZone());
    return service;
}

}  // namespace

TimeZone::~TimeZone() = default;

std::shared_ptr<const TimeZone> TimeZone::timeZoneWithName(StringView name) {
    return zoneNamed(toUTF8(name));
}

std::shared_ptr<const TimeZone> TimeZone::utc() {
    static const auto& zone = *new std::shared_ptr<const TimeZone>(zoneFromRule("UTC0", "UTC"));
    return zone;
}

std::shared_ptr<const TimeZone> sharedTimeZone() { return sharedZone().current(); }

std::shared_ptr<const TimeZone> setSharedTimeZone(std::shared_ptr<const TimeZone> timeZone) {
    return sharedZone().replaceBy(std::move(timeZone));
}

}  // namespace QZCore
