#include "QZCore/platform/images.h"
#include "foundation/hash.h"
#include "platform/shared_service.h"

namespace QZCore {
namespace {

class NoImageDecoder final : public ImageDecoder {
public:
    std::optional<Image> decode(DataView /*bytes*/) const override { return std::nullopt; }
};

std::shared_ptr<const ImageDecoder> makeDefaultImageDecoder() {
    std::shared_ptr<const ImageDecoder> platform = makePlatformImageDecoder();
    return platform == nullptr ? std::make_shared<NoImageDecoder>() : platform;
}

SharedService<const ImageDecoder>& sharedDecoder() {
    static auto& service = *new SharedService<const ImageDecoder>(makeDefaultImageDecoder());
    return service;
}

std::size_t hashOfNumber(double number) { return std::hash<double>{}(number); }

}  // namespace

ImageDecoder::~ImageDecoder() = default;

std::size_t hashOf(const Image& image) {
    std::size_t hash = std::hash<std::string_view>{}(textOf(image.data));
    hash = hashCombine(hash, hashText(image.mediaType));
    hash = hashCombine(hash, hashOfNumber(image.width));
    hash = hashCombine(hash, hashOfNumber(image.height));
    return hashCombine(hash, image.isCaution ? 1 : 0);
}

std::shared_ptr<const ImageDecoder> sharedImageDecoder() { return sharedDecoder().current(); }

std::shared_ptr<const ImageDecoder> setSharedImageDecoder(
    std::shared_ptr<const ImageDecoder> decoder) {
    return sharedDecoder().replaceBy(std::move(decoder));
}

#ifndef QZCORE_WITH_GDK_PIXBUF
std::shared_ptr<const ImageDecoder> makePlatformImageDecoder() { return {}; }
#endif

}  // namespace QZCore
