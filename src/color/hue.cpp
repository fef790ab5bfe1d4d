#include <cmath>

#include "QZCore/color/color.h"

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

/// The calibrated RGB colour of a hue, saturation and brightness.
Color colorWithBrightness(double hue, double saturation, double brightness, double alpha) {
    const double v = clampedToUnit(brightness);
    const double s = clampedToUnit(saturation);
    const double sixths = fractionOfTurn(hue) * 6;
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

}  // namespace

Color Color::colorWithHue(double hue, double saturation, double lightness, double alpha) {
    const double m = saturation * (lightness < 0.5 ? lightness : 1 - lightness);
    const double brightness = lightness + m;
    // At lightness 0 this is 0 / 0, which the clamping takes as 0.
    return colorWithBrightness(hue, 2 * m / brightness, brightness, alpha);
}

}  // namespace QZCore
