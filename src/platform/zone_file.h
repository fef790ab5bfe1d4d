// Compiled time zone files, as RFC 8536 defines them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "QZCore/foundation/data.h"
#include "platform/zone_rule.h"

namespace QZCore {

/// No change lies farther from 1970: RFC 8536 allows none to be earlier.
inline constexpr std::int64_t kFarthestChange = std::int64_t{1} << 59;

/// What a zone file says.
struct ZoneTable {
    /// One kind of local time.
    struct Type {
        std::int32_t offset = 0;
        bool isDaylightSaving = false;
        std::string abbreviation;
    };

    /// At least one; the first holds before the first change.
    std::vector<Type> types;
    /// When local time changed, in order, in seconds since 1970.
    std::vector<std::int64_t> changes;
    /// To which type, for each change.
    std::vector<std::uint8_t> typeOfChange;
    /// What holds after the last change.
    std::optional<ZoneRule> rule;
};

/// Reads a zone file; nothing when it is cut off or says what cannot be.
[[nodiscard]] std::optional<ZoneTable> readZoneFile(DataView bytes);

}  // namespace QZCore
