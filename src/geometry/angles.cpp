#include "QZCore/geometry/angles.h"

#include <cmath>
#include <numbers>

#include "foundation/single_precision.h"

namespace QZCore {

float radiansFromDegrees(float degrees) { return f32(degrees * std::numbers::pi / 180); }

float degreesFromRadians(float radians) { return f32(radians * 180.0 / std::numbers::pi); }

float radiansBetweenPoints(Point to, Point from) {
    if (to == from) return 0;
    return f32(std::atan2(to.y - from.y, to.x - from.x));
}

float degreesBetweenPoints(Point to, Point from) {
    const float radians = radiansBetweenPoints(to, from);
    if (radians == 0) return 0;
    const float degrees = degreesFromRadians(radians);
    return degrees < 0 ? degrees + 360 : degrees;
}

float degreesFromNearest45(float degrees) {
    if (degrees > 315) return 360 - degrees;
    if (degrees > 270) return degrees - 270;
    if (degrees > 225) return 270 - degrees;
    if (degrees > 180) return degrees - 180;
    if (degrees > 135) return 180 - degrees;
    if (degrees > 90) return degrees - 90;
    if (degrees > 45) return 90 - degrees;
    return degrees;
}

}  // namespace QZCore
