#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <memory>

#include "QZCore/platform/images.h"

namespace QZCore {
namespace {

constexpr std::int64_t kMaximalPixels = 40'000'000;
constexpr std::size_t kMaximalBytes = std::size_t{64} << 20;

/// Bytes are handed over in pieces, so that a refused size is seen early.
constexpr std::size_t kPiece = std::size_t{64} << 10;

struct Unreference {
    void operator()(void* object) const { g_object_unref(object); }
};
using Loader = std::unique_ptr<GdkPixbufLoader, Unreference>;

/// Asks for a size of nothing, which makes every format's reader give up
/// before it takes memory for the pixels.
void refuseBombs(GdkPixbufLoader* loader, int width, int height, void* /*data*/) {
    if (std::int64_t{width} * height > kMaximalPixels) gdk_pixbuf_loader_set_size(loader, 0, 0);
}

bool readWhole(GdkPixbufLoader* loader, DataView bytes) {
    bool good = true;
    while (good && !bytes.empty()) {
        const DataView piece = bytes.first(std::min(kPiece, bytes.size()));
        good = gdk_pixbuf_loader_write(loader, piece.data(), piece.size(), nullptr) != FALSE;
        bytes = bytes.subspan(piece.size());
    }
    return gdk_pixbuf_loader_close(loader, nullptr) != FALSE && good;
}

String mediaTypeOf(GdkPixbufFormat* format) {
    char** types = gdk_pixbuf_format_get_mime_types(format);
    String first = types[0] == nullptr ? String() : fromUTF8(types[0]);
    g_strfreev(types);
    return first;
}

class GdkPixbufImageDecoder final : public ImageDecoder {
public:
    std::optional<Image> decode(DataView bytes) const override {
        if (bytes.size() > kMaximalBytes) return std::nullopt;
        const Loader loader(gdk_pixbuf_loader_new());
        g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(refuseBombs), nullptr);
        if (!readWhole(loader.get(), bytes)) return std::nullopt;
        GdkPixbuf* pixels = gdk_pixbuf_loader_get_pixbuf(loader.get());
        if (pixels == nullptr) return std::nullopt;
        return Image{.data = Data(bytes.begin(), bytes.end()),
                     .mediaType = mediaTypeOf(gdk_pixbuf_loader_get_format(loader.get())),
                     .width = static_cast<double>(gdk_pixbuf_get_width(pixels)),
                     .height = static_cast<double>(gdk_pixbuf_get_height(pixels))};
    }
};

}  // namespace

std::shared_ptr<const ImageDecoder> makePlatformImageDecoder() {
    return std::make_shared<GdkPixbufImageDecoder>();
}

}  // namespace QZCore
