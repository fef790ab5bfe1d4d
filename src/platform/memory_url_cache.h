// The part of a URL cache that is kept in memory.
#pragma once

#include <list>
#include <mutex>
#include <string>
#include <unordered_map>

#include "platform/cached_response.h"

namespace QZCore {

/// Keeps the answers that were used last, up to a number of bytes. Every
/// operation may be called from any thread.
class MemoryUrlCache {
public:
    explicit MemoryUrlCache(std::uint64_t capacity) : capacity_(capacity) {}

    /// The answer for `url`, which counts as used now; empty when there is none.
    [[nodiscard]] CachedResponsePointer find(const std::string& url);

    /// Keeps `response` in place of any other for `url`, and forgets what has
    /// not been used for longest. One that is larger than the whole cache is
    /// not kept.
    void store(const std::string& url, CachedResponsePointer response);

    /// Forgets the answer for `url`.
    void remove(const std::string& url);

    [[nodiscard]] std::uint64_t bytes();
    [[nodiscard]] std::uint64_t capacity() const { return capacity_; }

private:
    struct Entry {
        std::string url;
        CachedResponsePointer response;
        std::uint64_t bytes = 0;
    };
    using Entries = std::list<Entry>;

    void forget(Entries::iterator entry);

    std::mutex mutex_;
    const std::uint64_t capacity_;
    std::uint64_t bytes_ = 0;
    Entries entries_;  // the one used last stands first
    std::unordered_map<std::string, Entries::iterator> places_;
};

}  // namespace QZCore
