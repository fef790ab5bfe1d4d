// How long an answer may be used again without asking the server: RFC 9111 for
// a private cache. Times are seconds since 1970.
#pragma once

#include <cstdint>

#include "platform/http_fields.h"

namespace QZCore {

/// When an answer was asked for and when it came.
struct ExchangeTimes {
    std::int64_t requested = 0;
    std::int64_t received = 0;
};

/// Whether a cache may keep the answer at all.
[[nodiscard]] bool mayBeStored(const HttpFields& fields);

/// The time until which the answer is fresh; not after `received` when it may
/// only be used after asking. An answer that says nothing of itself is fresh
/// for a tenth of the time since it was last modified, but for a week at most.
[[nodiscard]] std::int64_t freshUntil(const HttpFields& fields, ExchangeTimes times);

}  // namespace QZCore
