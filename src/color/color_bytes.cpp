#include "QZCore/color/color_bytes.h"

#include <cmath>

namespace QZCore {
namespace {

int byteOf(double component) {
    constexpr double kMost = 255;
    if (!(component > 0)) return 0;
    return component < 1 ? static_cast<int>(std::lround(component * kMost)) : 255;
}

}  // namespace

ColorBytes colorBytes(const Color& color) {
    return {byteOf(color.redComponent()), byteOf(color.greenComponent()),
            byteOf(color.blueComponent())};
}

}  // namespace QZCore
