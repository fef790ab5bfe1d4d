#include "QZCore/color/color.h"

#include <functional>

#include "QZCore/foundation/preferences.h"
#include "color/system_colors.h"
#include "foundation/hash.h"

namespace QZCore {

Color Color::colorWithCalibrated255Red(double red, double green, double blue, double alpha) {
    return colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, alpha);
}

Color Color::colorWithDevice255Red(double red, double green, double blue, double alpha) {
    return colorWithDeviceRed(red / 255.0, green / 255.0, blue / 255.0, alpha);
}

Color Color::colorWithCalibrated255White(double white, double alpha) {
    return colorWithCalibratedWhite(white / 255.0, alpha);
}

Color Color::textColor() { return kTextColor; }

Color Color::controlBlueColor() { return kControlAccentColor; }

bool Color::isClearColor() const { return fixed_ == Fixed::Clear; }

bool Color::isWhiteColor() const {
    if (fixed_ == Fixed::White) return true;
    return Preferences::shared().boolForKey(u"isWhiteColor Compare Strings") &&
           stringForColor() == whiteColorAsString();
}

bool Color::isBlackColor() const {
    if (fixed_ == Fixed::Black) return true;
    return Preferences::shared().boolForKey(u"isBlackColor Compare Strings") &&
           stringForColor() == blackColorAsString();
}

bool Color::isEqualByString(const Color& other) const {
    return stringForColor() == other.stringForColor();
}

std::size_t hashOf(const Color& color) {
    auto hash = static_cast<std::size_t>(color.model());
    for (const double component : {color.redComponent(), color.greenComponent(),
                                   color.blueComponent(), color.alphaComponent()}) {
        hash = hashCombine(hash, std::hash<double>{}(component));
    }
    return hash;
}

String descriptionOf(const Color& color) { return color.stringForColor(); }

}  // namespace QZCore
