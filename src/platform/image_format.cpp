#include "platform/image_format.h"

#include <array>

#include "platform/image_end.h"

namespace QZCore {
namespace {

using namespace std::string_view_literals;

/// For formats whose reader notices a missing end by itself.
bool endIsTheReadersBusiness(DataView /*file*/) { return true; }

constexpr std::array kFormats{
    ImageFormat{"\x89PNG\r\n\x1A\n"sv, "png", u"image/png", pngHasEnd, true},
    ImageFormat{"\xFF\xD8\xFF"sv, "jpeg", u"image/jpeg", jpegHasEnd, true},
    ImageFormat{"GIF87a"sv, "gif", u"image/gif", endIsTheReadersBusiness, false},
    ImageFormat{"GIF89a"sv, "gif", u"image/gif", endIsTheReadersBusiness, false},
    ImageFormat{"BM"sv, "bmp", u"image/bmp", bmpReachesPixels, true},
    ImageFormat{"II*\0"sv, "tiff", u"image/tiff", endIsTheReadersBusiness, true},
    ImageFormat{"MM\0*"sv, "tiff", u"image/tiff", endIsTheReadersBusiness, true},
};

}  // namespace

const ImageFormat* imageFormatOf(DataView file) {
    for (const ImageFormat& format : kFormats) {
        if (textOf(file).starts_with(format.signature)) return &format;
    }
    return nullptr;
}

}  // namespace QZCore
