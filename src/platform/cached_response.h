// An answer as the cache keeps it, in memory and as a file.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "QZCore/foundation/data.h"
#include "platform/http_fields.h"

namespace QZCore {

/// An answer, and for how long it is fresh. Times are seconds since 1970.
struct CachedResponse {
    std::int64_t received = 0;
    std::int64_t freshUntil = 0;
    HttpFields fields{};
    Data body{};

    friend bool operator==(const CachedResponse&, const CachedResponse&) = default;
};

using CachedResponsePointer = std::shared_ptr<const CachedResponse>;

/// Whether `response` may be used at `now` without asking. One from the future
/// may not: the clock has been set back, and nobody knows its age.
[[nodiscard]] inline bool isFresh(const CachedResponse& response, std::int64_t now) {
    return response.received <= now && now < response.freshUntil;
}

/// The content of a cache file.
[[nodiscard]] Data cacheFileOf(std::string_view url, const CachedResponse& response);

/// The answer for `url` that a cache file holds; nothing when it is damaged,
/// or kept for another URL.
[[nodiscard]] std::optional<CachedResponse> readCacheFile(std::string_view url, DataView file);

}  // namespace QZCore
