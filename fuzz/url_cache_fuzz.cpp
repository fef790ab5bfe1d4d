// The files of the URL cache, and the fields and dates in them.
#include "platform/cached_response.h"
#include "platform/http_freshness.h"
#include "require.h"

using namespace QZCore;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::string_view kUrl = "http://a/";
    const std::optional<CachedResponse> response = readCacheFile(kUrl, {data, size});
    if (!response) return 0;
    require(readCacheFile(kUrl, cacheFileOf(kUrl, *response)) == response);
    // A day more or less of the way does not change how long it stays fresh
    // by more than that.
    constexpr std::int64_t kDay = 86400;
    const std::int64_t early = freshUntil(response->fields, {kDay, kDay});
    const std::int64_t late = freshUntil(response->fields, {0, kDay});
    require(late <= early && early - late <= kDay);
    return 0;
}
