// What the cache keeps of an HTTP answer.
#pragma once

#include "platform/cached_response.h"
#include "platform/http_freshness.h"
#include "platform/http_get.h"

namespace QZCore {

/// Whether the answer may be kept: it is a plain success, and neither it nor a
/// redirect on the way to it forbids that.
[[nodiscard]] bool mayBeKept(const HttpAnswer& answer);

/// What to keep of an answer. Behind redirects it is fresh only as long as
/// every one of them says of itself, and has no condition to ask with, since
/// they may lead elsewhere the next time.
[[nodiscard]] CachedResponse responseToKeep(const HttpAnswer& answer, ExchangeTimes times);

/// The lines that ask the server for an answer only when `kept` is no longer
/// good.
[[nodiscard]] std::vector<std::string> conditionsFor(const CachedResponse& kept);

/// The kept answer, brought up to date by the fields that came with the news
/// that it is still good.
[[nodiscard]] CachedResponse refreshed(CachedResponse kept, const HttpFields& news,
                                       ExchangeTimes times);

}  // namespace QZCore
