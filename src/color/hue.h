// Colours by hue, saturation and brightness.
#pragma once

#include "QZCore/color/color.h"

namespace QZCore {

/// Three numbers from 0 to 1. The hue of red is 0, and that of greys too.
struct HueSaturationBrightness {
    double hue = 0;
    double saturation = 0;
    double brightness = 0;
};

/// Those of `color`, whose components are clamped to 0 to 1.
[[nodiscard]] HueSaturationBrightness hueSaturationBrightnessOf(const Color& color);

/// The calibrated RGB colour of `hsb`. Hues wrap; saturation and brightness are
/// clamped, and what is not a number counts as 0.
[[nodiscard]] Color colorOf(const HueSaturationBrightness& hsb, double alpha);

}  // namespace QZCore
