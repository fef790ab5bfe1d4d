#include "QZCore/geometry/angles.h"
#include "QZCore/geometry/distances.h"
#include "QZCore/geometry/points.h"
#include "foundation/single_precision.h"

namespace QZCore {

Point rotatePointAroundPoint(Point point, Point center, float angle) {
    if (angle == 0) return point;
    const double direction = radiansBetweenPoints(point, center);
    return relativePoint(center, distanceBetweenPoints(point, center), f32(direction + angle));
}

std::vector<Point> rotateArrayOfPointsAroundPoint(std::vector<Point> points, Point center,
                                                  float angle) {
    for (Point& point : points) point = rotatePointAroundPoint(point, center, angle);
    return points;
}

}  // namespace QZCore
