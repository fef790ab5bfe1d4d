#include "platform/http_freshness.h"

#include <algorithm>

#include "platform/cache_control.h"
#include "platform/http_date.h"

namespace QZCore {
namespace {

constexpr std::int64_t kWeek = 7 * 86400;

/// The age that the answer had when it came.
std::int64_t initialAge(const HttpFields& fields, ExchangeTimes times) {
    const std::int64_t date = httpDate(fields.date).value_or(times.received);
    const std::int64_t apparent = std::max<std::int64_t>(times.received - date, 0);
    const std::int64_t stated = readDeltaSeconds(fields.age).value_or(0);
    return std::max(apparent, stated + std::max<std::int64_t>(times.received - times.requested, 0));
}

/// The age at which the answer stops being fresh.
std::int64_t lifetime(const HttpFields& fields, std::int64_t received) {
    const CacheControl control = readCacheControl(fields.cacheControl);
    if (control.noCache || fields.vary.find('*') != std::string::npos) return 0;
    if (control.maxAge) return *control.maxAge;
    const std::int64_t date = httpDate(fields.date).value_or(received);
    // An unreadable date, as "0" or "-1", means that it is past.
    if (!fields.expires.empty()) return httpDate(fields.expires).value_or(date) - date;
    const std::int64_t unchanged = date - httpDate(fields.lastModified).value_or(date);
    return std::clamp<std::int64_t>(unchanged / 10, 0, kWeek);
}

}  // namespace

bool mayBeStored(const HttpFields& fields) {
    return !readCacheControl(fields.cacheControl).noStore;
}

std::int64_t freshUntil(const HttpFields& fields, ExchangeTimes times) {
    return times.received + lifetime(fields, times.received) - initialAge(fields, times);
}

}  // namespace QZCore
