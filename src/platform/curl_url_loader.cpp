#include "QZCore/platform/url_loading.h"
#include "platform/http_get.h"

namespace QZCore {
namespace {

class CurlUrlLoader final : public UrlLoader {
public:
    std::optional<Data> load(const UrlRequest& request) override {
        std::optional<HttpAnswer> answer = httpGet({.url = toUTF8(request.url.absoluteString),
                                                    .timeout = request.timeout,
                                                    .byteLimit = request.byteLimit});
        if (!answer) return std::nullopt;
        return std::move(answer->body);
    }
    bool hasCachedResponse(const URL& /*url*/) override { return false; }
    UrlCacheUsage cacheUsage() override { return {}; }
};

}  // namespace

std::shared_ptr<UrlLoader> makeNetworkUrlLoader(const UrlCacheSettings& /*settings*/) {
    return std::make_shared<CurlUrlLoader>();
}

}  // namespace QZCore
