// The cache of a URL loader: a part in memory before a part on the disk.
#pragma once

#include <string>

#include "QZCore/platform/url_loading.h"
#include "platform/disk_url_cache.h"
#include "platform/memory_url_cache.h"

namespace QZCore {

/// Keeps answers by URL. Every operation may be called from any thread.
class UrlCache {
public:
    explicit UrlCache(const UrlCacheSettings& settings);

    /// The answer for `url`, fresh or not; empty when there is none.
    [[nodiscard]] CachedResponsePointer find(const std::string& url);

    /// Keeps `response` in place of any other for `url`.
    void store(const std::string& url, CachedResponse response);

    /// Forgets the answer for `url`.
    void remove(const std::string& url);

    [[nodiscard]] UrlCacheUsage usage();

private:
    MemoryUrlCache memory_;
    DiskUrlCache disk_;
};

}  // namespace QZCore
