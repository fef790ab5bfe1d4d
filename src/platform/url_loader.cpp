#include "QZCore/platform/url_loading.h"
#include "platform/shared_service.h"

namespace QZCore {
namespace {

class RefusingUrlLoader final : public UrlLoader {
public:
    std::optional<Data> load(const UrlRequest& /*request*/) override { return std::nullopt; }
    bool hasCachedResponse(const URL& /*url*/) override { return false; }
    UrlCacheUsage cacheUsage() override { return {}; }
};

std::shared_ptr<UrlLoader> makeDefaultUrlLoader() {
    std::shared_ptr<UrlLoader> network = makeNetworkUrlLoader();
    return network == nullptr ? makeRefusingUrlLoader() : network;
}

SharedService<UrlLoader>& sharedLoader() {
    static auto& service = *new SharedService<UrlLoader>(makeDefaultUrlLoader());
    return service;
}

}  // namespace

UrlLoader::~UrlLoader() = default;

std::shared_ptr<UrlLoader> sharedUrlLoader() { return sharedLoader().current(); }

std::shared_ptr<UrlLoader> setSharedUrlLoader(std::shared_ptr<UrlLoader> loader) {
    return sharedLoader().replaceBy(std::move(loader));
}

std::shared_ptr<UrlLoader> makeRefusingUrlLoader() { return std::make_shared<RefusingUrlLoader>(); }

#ifndef QZCORE_WITH_CURL
std::shared_ptr<UrlLoader> makeNetworkUrlLoader(const UrlCacheSettings& /*settings*/) { return {}; }
#endif

}  // namespace QZCore
