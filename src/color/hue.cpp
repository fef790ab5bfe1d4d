#include "color/hue.h"

#include <algorithm>
#include <cmath>

namespace QZCore {
namespace {

double clampedToUnit(double value) {
    if (!(value > 0)) return 0;  // not-a-number too
    return value < 1 ? value : 1;
}

double fractionOfTurn(double hue) {
    const double fraction = hue - std::floor(hue);
    return fraction >= 0 && fraction < 1 ? fraction : 0;
}

/// The turn, in sixths, between a primary colour and the one that the strongest
/// of three components stands for.
double sixthsOf(double red, double green, double blue, double spread) {
    if (spread == 0) return 0;
    const double strongest = std::max({red, green, blue});
    if (strongest == red) return (green - blue) / spread;
    if (strongest == green) return 2 + (blue - red) / spread;
    return 4 + (red - green) / spread;
}

}  // namespace

HueSaturationBrightness hueSaturationBrightnessOf(const Color& color) {
    const double red = clampedToUnit(color.redComponent());
    const double green = clampedToUnit(color.greenComponent());
    const double blue = clampedToUnit(color.blueComponent());
    const double brightness = std::max({red, green, blue});
    const double spread = brightness - std::min({red, green, blue});
    return {fractionOfTurn(sixthsOf(red, green, blue, spread) / 6),
            brightness > 0 ? spread / brightness : 0, brightness};
}

Color colorOf(const HueSaturationBrightness& hsb, double alpha) {
    const double v = clampedToUnit(hsb.brightness);
    const double s = clampedToUnit(hsb.saturation);
    const double sixths = fractionOfTurn(hsb.hue) * 6;
    const int sextant = static_cast<int>(sixths);
    const double past = sixths - sextant;
    const double low = v * (1 - s);
    const double falling = v * (1 - s * past);
    const double rising = v * (1 - s * (1 - past));
    switch (sextant) {
        case 0:
            return Color::colorWithCalibratedRed(v, rising, low, alpha);
        case 1:
            return Color::colorWithCalibratedRed(falling, v, low, alpha);
        case 2:
            return Color::colorWithCalibratedRed(low, v, rising, alpha);
        case 3:
            return Color::colorWithCalibratedRed(low, falling, v, alpha);
        case 4:
            return Color::colorWithCalibratedRed(rising, low, v, alpha);
        default:
            return Color::colorWithCalibratedRed(v, low, falling, alpha);
    }
}

Color Color::colorWithHue(double hue, double saturation, double lightness, double alpha) {
    const double m = saturation * (lightness < 0.5 ? lightness : 1 - lightness);
    const double brightness = lightness + m;
    // At lightness 0 this is 0 / 0, which the clamping takes as 0.
    return colorOf({hue, 2 * m / brightness, brightness}, alpha);
}

}  // namespace QZCore
