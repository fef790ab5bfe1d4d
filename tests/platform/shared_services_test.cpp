#include <doctest/doctest.h>

#include "QZCore/platform/fonts.h"
#include "QZCore/platform/images.h"
#include "QZCore/platform/url_loading.h"

namespace QZCore {
namespace {

/// An application sets `own`, and takes it away again.
template <class Service>
void checkReplacing(std::shared_ptr<Service> (*shared)(),
                    std::shared_ptr<Service> (*replace)(std::shared_ptr<Service>),
                    const std::shared_ptr<Service>& own) {
    const auto standard = shared();
    CHECK(standard != nullptr);
    CHECK(replace(own) == nullptr);
    CHECK(shared() == own);
    CHECK(replace(nullptr) == own);
    CHECK(shared() == standard);
}

class EverythingIsCaution final : public ImageDecoder {
    std::optional<Image> decode(DataView /*bytes*/) const override { return cautionImage(); }
};

}  // namespace

TEST_CASE("an application can put its own service in place and take it away") {
    checkReplacing<const FontCatalog>(sharedFontCatalog, setSharedFontCatalog,
                                      makeInMemoryFontCatalog());
    checkReplacing<const ImageDecoder>(sharedImageDecoder, setSharedImageDecoder,
                                       std::make_shared<EverythingIsCaution>());
    checkReplacing<UrlLoader>(sharedUrlLoader, setSharedUrlLoader, makeRefusingUrlLoader());
    CHECK_FALSE(makeRefusingUrlLoader()->load({.url = {u"file:///etc/hosts"}}));
}

}  // namespace QZCore
