// The reader of SVG path data, and what is made of paths from anywhere.
#include <cmath>

#include "QZCore/bezier.h"
#include "QZCore/foundation/data.h"
#include "require.h"

using namespace QZCore;

namespace {

void requireFinite(const BezierPath& path) {
    for (std::uint32_t i = 0; i < path.elements().pointCount(); ++i) {
        const Point point = path.elements().points()[i];
        require(std::isfinite(point.x) && std::isfinite(point.y));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length) {
    const String text = fromUTF8(textOf({data, length}));
    const auto [path, understoodLength] = readSvgPathData(text);
    require(understoodLength <= text.size());
    requireFinite(path);

    const SvgPathReading understood = readSvgPathData(StringView(text).substr(0, understoodLength));
    require(understood.length == understoodLength && understood.path == path);

    const String written = svgPathData(path);
    const SvgPathReading again = readSvgPathData(written);
    require(again.length == written.size() && again.path == path);
    require(svgPathData(again.path) == written);

    const BezierPath rounded = path.bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(3);
    require(rounded.elementCount() <= 4 * path.elementCount() + 1);
    // Curves far beyond any board take long to measure.
    const Size size = path.bounds().size;
    if (!(size.width < 1e6 && size.height < 1e6)) return 0;
    const auto whole = static_cast<float>(path.length());
    const BezierPath part = path.bezierPathFromLength(whole / 4, whole / 2);
    require(part.elementCount() <= path.elementCount() + 1);
    return 0;
}
