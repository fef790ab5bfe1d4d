#include "platform/memory_url_cache.h"

namespace QZCore {
namespace {

std::uint64_t bytesOfEntry(const std::string& url, const CachedResponse& response) {
    std::uint64_t bytes = url.size() + response.body.size();
    for (const HttpFieldRow& row : kHttpFields) bytes += (response.fields.*row.value).size();
    return bytes;
}

}  // namespace

CachedResponsePointer MemoryUrlCache::find(const std::string& url) {
    const std::lock_guard lock(mutex_);
    const auto place = places_.find(url);
    if (place == places_.end()) return {};
    entries_.splice(entries_.begin(), entries_, place->second);
    return entries_.front().response;
}

void MemoryUrlCache::store(const std::string& url, CachedResponsePointer response) {
    const std::lock_guard lock(mutex_);
    if (const auto place = places_.find(url); place != places_.end()) forget(place->second);
    const std::uint64_t bytes = bytesOfEntry(url, *response);
    if (bytes > capacity_) return;
    while (bytes > capacity_ - bytes_) forget(std::prev(entries_.end()));
    entries_.push_front({url, std::move(response), bytes});
    places_.emplace(url, entries_.begin());
    bytes_ += bytes;
}

void MemoryUrlCache::remove(const std::string& url) {
    const std::lock_guard lock(mutex_);
    if (const auto place = places_.find(url); place != places_.end()) forget(place->second);
}

std::uint64_t MemoryUrlCache::bytes() {
    const std::lock_guard lock(mutex_);
    return bytes_;
}

void MemoryUrlCache::forget(Entries::iterator entry) {
    bytes_ -= entry->bytes;
    places_.erase(entry->url);
    entries_.erase(entry);
}

}  // namespace QZCore
