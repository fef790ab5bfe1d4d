// The part of a URL cache that is kept on the disk.
#pragma once

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>

#include "platform/cached_response.h"

namespace QZCore {

/// Keeps answers as files of one folder, up to a number of bytes. The folder
/// may be shared by processes and may hold anything: a file that is no answer
/// is as good as none, and files with other names are left alone. Every
/// operation may be called from any thread.
class DiskUrlCache {
public:
    /// Keeps nothing when `folder` is empty.
    DiskUrlCache(std::string folder, std::uint64_t capacity);

    /// The answer for `url`, which counts as used now.
    [[nodiscard]] std::optional<CachedResponse> find(const std::string& url);

    /// Keeps `response` in place of any other for `url`, and forgets what has
    /// not been used for longest. One that is larger than the whole cache is
    /// not kept.
    void store(const std::string& url, const CachedResponse& response);

    /// Forgets the answer for `url`.
    void remove(const std::string& url);

    [[nodiscard]] std::uint64_t bytes();
    [[nodiscard]] std::uint64_t capacity() const { return capacity_; }

private:
    [[nodiscard]] std::filesystem::path pathFor(const std::string& url) const;
    void count();
    void removeFile(const std::filesystem::path& path);
    void makeRoom();

    std::mutex mutex_;
    const std::filesystem::path folder_;
    const std::uint64_t capacity_;
    std::optional<std::uint64_t> bytes_;  // counted before the first change
};

}  // namespace QZCore
