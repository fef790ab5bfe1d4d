// URL loading: blocking fetches through a shared cache.
//
// A fetch runs on the caller's thread and always ends: time, bytes and
// redirects are limited. Only http, https and file URLs are fetched. Every
// operation may be called from any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

/// How a fetch uses the cache. The numbers are stored in preferences; any other
/// number counts as 0. Files are read whatever the policy says.
enum class UrlCachePolicy : std::int64_t {
    UseProtocolCachePolicy = 0,    // what the response headers allow
    ReloadIgnoringLocalCache = 1,  // always ask the server
    ReturnCacheElseLoad = 2,       // the cache, however old; else the server
    ReturnCacheDontLoad = 3,       // the cache or nothing
};

/// One fetch.
struct UrlRequest {
    /// What to fetch.
    URL url;
    /// How the cache is used.
    UrlCachePolicy cachePolicy = UrlCachePolicy::UseProtocolCachePolicy;
    /// The longest time in seconds that the whole fetch may take; 0 or less,
    /// and anything above an hour, counts as an hour.
    double timeout = 60;
    /// The most bytes that are accepted; a longer answer is a failure.
    std::size_t byteLimit = std::size_t{64} << 20;
};

/// What a cache holds and may hold, in bytes. A part that is not kept has a
/// capacity of 0.
struct UrlCacheUsage {
    /// Held in memory.
    std::uint64_t memoryBytes = 0;
    /// Allowed in memory.
    std::uint64_t memoryCapacity = 0;
    /// Held on the disk.
    std::uint64_t diskBytes = 0;
    /// Allowed on the disk.
    std::uint64_t diskCapacity = 0;
};

/// Loads what URLs name.
class QZ_EXPORT UrlLoader {
public:
    virtual ~UrlLoader();

    /// The bytes, or nothing when the fetch fails: not found, refused, too
    /// slow, too long, cut short, too many redirects, a folder, another scheme.
    [[nodiscard]] virtual std::optional<Data> load(const UrlRequest& request) = 0;

    /// Whether the cache holds an answer for the URL, however old.
    [[nodiscard]] virtual bool hasCachedResponse(const URL& url) = 0;

    /// What the cache holds.
    [[nodiscard]] virtual UrlCacheUsage cacheUsage() = 0;
};

/// How the cache of a loader is laid out. Each part forgets what has not been
/// used for longest when it would grow beyond its capacity, in bytes.
struct UrlCacheSettings {
    /// The most bytes that are kept in memory.
    std::uint64_t memoryCapacity = std::uint64_t{16} << 20;
    /// The most bytes that are kept in the folder.
    std::uint64_t diskCapacity = std::uint64_t{128} << 20;
    /// The folder for the part on the disk, which is made when it is missing;
    /// no such part is kept when it is empty. Processes may share a folder.
    std::string folder{};
};

/// Makes a loader that fetches over the network and reads files; empty when the
/// library was built without one. Redirects are followed ten times and never
/// to a file.
[[nodiscard]] QZ_EXPORT std::shared_ptr<UrlLoader> makeNetworkUrlLoader(
    const UrlCacheSettings& settings = {});

/// The loader that the library uses: the network's, unless the application has
/// set another. Where the library was built without one, every fetch fails.
[[nodiscard]] QZ_EXPORT std::shared_ptr<UrlLoader> sharedUrlLoader();

/// Makes `loader` the one that the library uses and returns the one set before.
/// An empty pointer stands for the default, in both directions.
QZ_EXPORT std::shared_ptr<UrlLoader> setSharedUrlLoader(std::shared_ptr<UrlLoader> loader);

/// Makes a loader that refuses every fetch, for applications that must not
/// touch the network.
[[nodiscard]] QZ_EXPORT std::shared_ptr<UrlLoader> makeRefusingUrlLoader();

}  // namespace QZCore
