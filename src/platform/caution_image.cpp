#include "QZCore/platform/images.h"

namespace QZCore {
namespace {

/// Part of stored texts: an attachment holds these bytes.
constexpr std::string_view kWarningTriangle =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"32\" height=\"32\" viewBox=\"0 0 32 32\">\n"
    "<path d=\"M16 4 29 27H3Z\" fill=\"#ffcc00\" stroke=\"#ffcc00\" stroke-width=\"3\""
    " stroke-linejoin=\"round\"/>\n"
    "<path d=\"M16 11v8\" stroke=\"#332900\" stroke-width=\"3\" stroke-linecap=\"round\"/>\n"
    "<circle cx=\"16\" cy=\"23.5\" r=\"1.8\" fill=\"#332900\"/>\n"
    "</svg>\n";

Image makeCautionImage() {
    const DataView bytes = bytesOf(kWarningTriangle);
    return {.data = Data(bytes.begin(), bytes.end()),
            .mediaType = u"image/svg+xml",
            .width = 32,
            .height = 32,
            .isCaution = true};
}

}  // namespace

const Image& cautionImage() {
    static const Image& image = *new Image(makeCautionImage());
    return image;
}

}  // namespace QZCore
