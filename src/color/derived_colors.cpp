#include <algorithm>
#include <cmath>

#include "QZCore/color/color.h"
#include "color/hue.h"
#include "foundation/single_precision.h"

namespace QZCore {

bool Color::shouldUseBlackForLabel() const {
    constexpr double kNearlyTransparent = 0.2;
    constexpr double kLight = 0.6;
    if (components_.alpha < kNearlyTransparent) return true;
    const float luminance =
        f32(0.3 * components_.red + 0.59 * components_.green + 0.11 * components_.blue);
    return luminance >= kLight;
}

Color Color::appropriateLabelColor() const {
    return shouldUseBlackForLabel() ? blackColor() : whiteColor();
}

Color Color::emboldenedColorByPercentage(float factor) const {
    const double p = std::clamp(factor, 0.0F, 2.0F);
    if (p == 1 || std::isnan(p)) return *this;
    HueSaturationBrightness hsb = hueSaturationBrightnessOf(*this);
    hsb.saturation *= p;
    hsb.brightness += 1 - p;
    return colorOf(hsb, components_.alpha);
}

}  // namespace QZCore
