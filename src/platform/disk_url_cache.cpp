#include "platform/disk_url_cache.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "QZCore/foundation/files.h"

namespace QZCore {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kDigits = 16;
constexpr std::string_view kSuffix = ".urlcache";

/// The name of the file for `url`: 64 bits of FNV-1a. Part of the caches that
/// are on disks. Two URLs of one name cost a fetch, since the file says whose
/// answer it holds.
std::string fileNameFor(std::string_view url) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char letter : url) {
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001B3;
    }
    std::string name(kDigits, '0');
    for (std::size_t i = kDigits; i-- > 0; hash >>= 4) name[i] = "0123456789abcdef"[hash & 15];
    return name.append(kSuffix);
}

bool isCacheFileName(std::string_view name) {
    return name.size() == kDigits + kSuffix.size() && name.ends_with(kSuffix) &&
           name.find_first_not_of("0123456789abcdef") == kDigits;
}

struct CacheFile {
    fs::path path;
    std::uint64_t bytes = 0;
    fs::file_time_type used;
};

/// A plain file of the cache; a link or a folder of such a name is not ours.
std::optional<CacheFile> cacheFileAt(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    if (error || !fs::is_regular_file(status)) return std::nullopt;
    const std::uint64_t bytes = fs::file_size(path, error);
    if (error) return std::nullopt;
    const fs::file_time_type used = fs::last_write_time(path, error);
    if (error) return std::nullopt;
    return CacheFile{path, bytes, used};
}

std::vector<CacheFile> cacheFilesIn(const fs::path& folder) {
    std::vector<CacheFile> files;
    std::error_code error;
    for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator();
         at.increment(error)) {
        if (!isCacheFileName(at->path().filename().native())) continue;
        if (auto file = cacheFileAt(at->path())) files.push_back(std::move(*file));
    }
    return files;
}

std::uint64_t sumOf(const std::vector<CacheFile>& files) {
    std::uint64_t bytes = 0;
    for (const CacheFile& file : files) bytes += file.bytes;
    return bytes;
}

void markAsUsed(const fs::path& path) {
    std::error_code ignored;
    fs::last_write_time(path, fs::file_time_type::clock::now(), ignored);
}

/// Makes the folder when it is missing, for this user only: what somebody has
/// looked at is nobody else's business.
void makeFolder(const fs::path& folder) {
    std::error_code ignored;
    if (fs::create_directories(folder, ignored)) {
        fs::permissions(folder, fs::perms::owner_all, ignored);
    }
}

}  // namespace

DiskUrlCache::DiskUrlCache(std::string folder, std::uint64_t capacity)
    : folder_(std::move(folder)), capacity_(folder_.empty() ? 0 : capacity) {}

std::optional<CachedResponse> DiskUrlCache::find(const std::string& url) {
    if (capacity_ == 0) return std::nullopt;
    const std::lock_guard lock(mutex_);
    const fs::path path = pathFor(url);
    if (!cacheFileAt(path)) return std::nullopt;
    const std::optional<Data> file = readFile(path, capacity_);
    if (!file) return std::nullopt;
    std::optional<CachedResponse> response = readCacheFile(url, *file);
    if (response) markAsUsed(path);
    return response;
}

void DiskUrlCache::store(const std::string& url, const CachedResponse& response) {
    if (capacity_ == 0) return;
    const Data file = cacheFileOf(url, response);
    const std::lock_guard lock(mutex_);
    const fs::path path = pathFor(url);
    removeFile(path);
    if (file.size() > capacity_) return;
    makeFolder(folder_);
    if (!writeFileAtomically(path, file)) return;
    markAsUsed(path);
    *bytes_ += file.size();
    if (*bytes_ > capacity_) makeRoom();
}

void DiskUrlCache::remove(const std::string& url) {
    if (capacity_ == 0) return;
    const std::lock_guard lock(mutex_);
    removeFile(pathFor(url));
}

std::uint64_t DiskUrlCache::bytes() {
    if (capacity_ == 0) return 0;
    const std::lock_guard lock(mutex_);
    count();
    return *bytes_;
}

fs::path DiskUrlCache::pathFor(const std::string& url) const { return folder_ / fileNameFor(url); }

void DiskUrlCache::count() {
    if (!bytes_) bytes_ = sumOf(cacheFilesIn(folder_));
}

/// Removes whatever has the name. A link must go too: writing through it would
/// change a file that is none of ours.
void DiskUrlCache::removeFile(const fs::path& path) {
    count();
    const std::optional<CacheFile> file = cacheFileAt(path);
    std::error_code error;
    if (fs::remove(path, error) && file) *bytes_ -= std::min(file->bytes, *bytes_);
}

/// Looks at the folder anew, since other processes may have changed it, and
/// frees an eighth of the capacity beyond what is needed, so that not every
/// later answer has to do so again. The newest answer stays.
void DiskUrlCache::makeRoom() {
    std::vector<CacheFile> files = cacheFilesIn(folder_);
    std::ranges::sort(files, {}, &CacheFile::used);
    bytes_ = sumOf(files);
    const std::uint64_t kept = capacity_ - capacity_ / 8;
    for (std::size_t i = 0; *bytes_ > kept && i + 1 < files.size(); ++i) {
        std::error_code error;
        if (fs::remove(files[i].path, error)) *bytes_ -= files[i].bytes;
    }
}

}  // namespace QZCore
