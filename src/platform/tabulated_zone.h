// Time zones from what zone files say.
#pragma once

#include <memory>

#include "QZCore/platform/time_zone.h"
#include "platform/zone_file.h"

namespace QZCore {

/// The zone with a table, which is one that `readZoneFile` gives, or has one
/// type and a rule.
[[nodiscard]] std::shared_ptr<const TimeZone> zoneFromTable(String identifier,
                                                            const ZoneTable& table);

}  // namespace QZCore
