#include "QZCore/platform/images.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/image_format.h"
#include "platform/svg_size.h"

namespace QZCore {
namespace {

constexpr std::int64_t kMaximalPixels = 40'000'000;
constexpr std::size_t kMaximalBytes = std::size_t{64} << 20;

struct Unreference {
    void operator()(void* object) const { g_object_unref(object); }
};
using Loader = std::unique_ptr<GdkPixbufLoader, Unreference>;

/// What the reader has told of an image.
struct Progress {
    int width = 0;
    int height = 0;
    std::vector<bool> rows{};
};

/// Asks for a size of nothing when the image is a bomb, which makes every
/// reader give up before it takes memory for the pixels.
void takeSize(GdkPixbufLoader* loader, int width, int height, Progress* progress) {
    if (std::int64_t{width} * height > kMaximalPixels) {
        gdk_pixbuf_loader_set_size(loader, 0, 0);
        return;
    }
    progress->width = width;
    progress->height = height;
    progress->rows.resize(static_cast<std::size_t>(std::max(height, 0)));
}

void takeRows(GdkPixbufLoader* /*loader*/, int /*x*/, int y, int /*width*/, int height,
              Progress* progress) {
    const auto size = static_cast<std::ptrdiff_t>(progress->rows.size());
    const auto first = progress->rows.begin();
    std::fill(first + std::clamp<std::ptrdiff_t>(y, 0, size),
              first + std::clamp<std::ptrdiff_t>(std::ptrdiff_t{y} + height, 0, size), true);
}

/// A loader has to be closed whatever came before.
bool readAll(GdkPixbufLoader* loader, DataView bytes) {
    const bool written =
        gdk_pixbuf_loader_write(loader, bytes.data(), bytes.size(), nullptr) != FALSE;
    return gdk_pixbuf_loader_close(loader, nullptr) != FALSE && written;
}

bool hasEveryRow(const Progress& progress) {
    return std::ranges::find(progress.rows, false) == progress.rows.end();
}

std::optional<Progress> readPixels(const ImageFormat& format, DataView bytes) {
    const Loader loader(gdk_pixbuf_loader_new_with_type(format.reader, nullptr));
    if (loader == nullptr) return std::nullopt;
    Progress progress;
    g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(takeSize), &progress);
    g_signal_connect(loader.get(), "area-updated", G_CALLBACK(takeRows), &progress);
    if (!readAll(loader.get(), bytes)) return std::nullopt;
    if (gdk_pixbuf_loader_get_pixbuf(loader.get()) == nullptr) return std::nullopt;
    if (progress.rows.empty()) return std::nullopt;
    if (format.reportsEveryRow && !hasEveryRow(progress)) return std::nullopt;
    return progress;
}

Image imageOf(DataView bytes, StringView mediaType, double width, double height) {
    return {.data = Data(bytes.begin(), bytes.end()),
            .mediaType = String(mediaType),
            .width = width,
            .height = height};
}

class GdkPixbufImageDecoder final : public ImageDecoder {
public:
    std::optional<Image> decode(DataView bytes) const override {
        if (bytes.size() > kMaximalBytes) return std::nullopt;
        if (const ImageFormat* format = imageFormatOf(bytes)) {
            if (!format->hasEnd(bytes)) return std::nullopt;
            const std::optional<Progress> pixels = readPixels(*format, bytes);
            if (!pixels) return std::nullopt;
            return imageOf(bytes, format->mediaType, pixels->width, pixels->height);
        }
        const std::optional<SvgSize> drawing = svgSize(bytes);
        if (!drawing) return std::nullopt;
        return imageOf(bytes, u"image/svg+xml", drawing->width, drawing->height);
    }
};

}  // namespace

std::shared_ptr<const ImageDecoder> makePlatformImageDecoder() {
    return std::make_shared<GdkPixbufImageDecoder>();
}

}  // namespace QZCore
