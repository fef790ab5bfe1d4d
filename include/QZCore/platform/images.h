// Images: their bytes, their size and their type.
//
// The library shows no images; it has to know whether bytes are one, and how
// large it is. Every operation may be called from any thread.
#pragma once

#include <memory>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"

namespace QZCore {

/// An encoded image that was found to be whole.
struct Image {
    /// The bytes as they came.
    Data data;
    /// The media type, as "image/png".
    String mediaType;
    /// The size in points: pixels, unless a size was asked for.
    double width = 0;
    /// The height, like the width.
    double height = 0;
    /// Whether this is the caution image that stands for a missing one.
    bool isCaution = false;

    /// Exact comparison of all fields.
    friend bool operator==(const Image&, const Image&) = default;
};

/// A number that is the same for equal images.
[[nodiscard]] QZ_EXPORT std::size_t hashOf(const Image& image);

/// Reads images.
class QZ_EXPORT ImageDecoder {
public:
    virtual ~ImageDecoder();

    /// The image that `bytes` hold; nothing when they are no image, are cut off
    /// or damaged, hold more than 40 million pixels, or are more than 64 MB.
    [[nodiscard]] virtual std::optional<Image> decode(DataView bytes) const = 0;
};

/// Makes the decoder of the platform, which reads PNG, JPEG, GIF, BMP and TIFF,
/// decoding the pixels once to be sure, and SVG; empty when the library was
/// built without one.
[[nodiscard]] QZ_EXPORT std::shared_ptr<const ImageDecoder> makePlatformImageDecoder();

/// The decoder that the library uses: the platform's, unless the application
/// has set another. Where the library was built without one, nothing is an
/// image.
[[nodiscard]] QZ_EXPORT std::shared_ptr<const ImageDecoder> sharedImageDecoder();

/// Makes `decoder` the one that the library uses and returns the one set
/// before. An empty pointer stands for the default, in both directions.
QZ_EXPORT std::shared_ptr<const ImageDecoder> setSharedImageDecoder(
    std::shared_ptr<const ImageDecoder> decoder);

/// The image that stands for one that cannot be shown: a warning triangle of
/// 32 by 32 points.
[[nodiscard]] QZ_EXPORT const Image& cautionImage();

}  // namespace QZCore
