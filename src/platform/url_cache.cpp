#include "platform/url_cache.h"

namespace QZCore {

UrlCache::UrlCache(const UrlCacheSettings& settings)
    : memory_(settings.memoryCapacity), disk_(settings.folder, settings.diskCapacity) {}

CachedResponsePointer UrlCache::find(const std::string& url) {
    if (CachedResponsePointer response = memory_.find(url)) return response;
    std::optional<CachedResponse> stored = disk_.find(url);
    if (!stored) return {};
    auto response = std::make_shared<const CachedResponse>(std::move(*stored));
    memory_.store(url, response);
    return response;
}

void UrlCache::store(const std::string& url, CachedResponse response) {
    disk_.store(url, response);
    memory_.store(url, std::make_shared<const CachedResponse>(std::move(response)));
}

void UrlCache::remove(const std::string& url) {
    memory_.remove(url);
    disk_.remove(url);
}

UrlCacheUsage UrlCache::usage() {
    return {.memoryBytes = memory_.bytes(),
            .memoryCapacity = memory_.capacity(),
            .diskBytes = disk_.bytes(),
            .diskCapacity = disk_.capacity()};
}

}  // namespace QZCore
