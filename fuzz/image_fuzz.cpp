// The image decoder, and what it finds out before it decodes.
#include "QZCore/platform/images.h"
#include "require.h"

using namespace QZCore;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const DataView bytes{data, size};
    const std::optional<Image> image = sharedImageDecoder()->decode(bytes);
    if (!image) return 0;
    require(DataView(image->data).size() == size);
    require(image->width > 0 && image->height > 0);
    require(image->mediaType == u"image/svg+xml" || image->width * image->height <= 40e6);
    require(sharedImageDecoder()->decode(image->data) == image);
    return 0;
}
