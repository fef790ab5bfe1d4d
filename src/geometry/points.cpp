#include "QZCore/geometry/points.h"

#include <cmath>

#include "foundation/single_precision.h"

namespace QZCore {

Point offsetPoint(Point point, float dx, float dy) { return {point.x + dx, point.y + dy}; }

Point offsetPointByPoint(Point point, Point offset) {
    return {point.x + offset.x, point.y + offset.y};
}

Point subtractPointByPoint(Point point, Point offset) {
    return {point.x - offset.x, point.y - offset.y};
}

Point relativePoint(Point point, float distance, float angle) {
    const double direction = angle;
    return {point.x + distance * std::cos(direction), point.y + distance * std::sin(direction)};
}

Point roundPoint(Point point) { return {std::round(f32(point.x)), std::round(f32(point.y))}; }

Point integralPoint(Point point) { return {std::floor(f32(point.x)), std::floor(f32(point.y))}; }

Point nonIntegralPoint(Point point) {
    const Point floored = integralPoint(point);
    return {floored.x + 0.5, floored.y + 0.5};
}

}  // namespace QZCore
