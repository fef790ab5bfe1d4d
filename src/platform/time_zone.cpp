#include "QZCore/platform/time_zone.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <utility>

#include "QZCore/foundation/files.h"
#include "platform/shared_service.h"
#include "platform/tabulated_zone.h"

namespace QZCore {
namespace {

constexpr std::string_view kZoneFolder = "/usr/share/zoneinfo/";
constexpr const char* kSystemZone = "/etc/localtime";
constexpr std::size_t kLongestFile = 1 << 20;

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
    return zoneFromTable(fromUTF8(name), *table);
}

std::shared_ptr<const TimeZone> zoneFromRule(std::string_view text, std::string_view name) {
    auto rule = ZoneRule::fromString(text);
    if (!rule) return nullptr;
    const ZoneTable table{.types = {{}}, .changes = {}, .typeOfChange = {}, .rule = rule};
    return zoneFromTable(fromUTF8(name), table);
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
