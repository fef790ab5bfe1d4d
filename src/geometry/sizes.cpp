#include "QZCore/geometry/sizes.h"

#include <algorithm>
#include <cmath>

namespace QZCore {

Size deltaSize(Size from, Size to) { return {to.width - from.width, to.height - from.height}; }

Size growSize(Size size, float dw, float dh) { return {size.width + dw, size.height + dh}; }

Size scaleSize(Size size, double factor) { return {size.width * factor, size.height * factor}; }

Size integralSize(Size size) { return ceilSize(size); }

Size floorSize(Size size) { return {std::floor(size.width), std::floor(size.height)}; }

Size ceilSize(Size size) { return {std::ceil(size.width), std::ceil(size.height)}; }

Size cropSize(Size size, Size max) {
    return {std::min(size.width, max.width), std::min(size.height, max.height)};
}

Size scaleSizeProportionallyInSize(Size size, Size max) {
    const double byWidth = max.width / size.width;
    const double byHeight = max.height / size.height;
    if (max.width > 0 && max.height > 0) return scaleSize(size, std::min(byWidth, byHeight));
    if (max.height > 0) return scaleSize(size, byHeight);
    if (max.width > 0) return scaleSize(size, byWidth);
    return size;
}

}  // namespace QZCore
