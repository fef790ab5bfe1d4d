#include "QZCore/bezier/bezier_path.h"
#include "QZCore/geometry/angles.h"
#include "QZCore/geometry/rectangles.h"

namespace QZCore {
namespace {

template <class Change>
void changeEach(detail::PathElements& elements, Change change) {
    Point* points = elements.changeablePoints();
    for (std::uint32_t i = 0; i < elements.pointCount(); ++i) points[i] = change(points[i]);
}

}  // namespace

void BezierPath::transformUsingAffineTransform(const AffineTransform& transform) {
    changeEach(elements_, [&](Point point) { return transform.transformed(point); });
}

void BezierPath::rotateByRadians(float angle) {
    if (angle == 0) return;
    rotateByRadians(angle, centerOfRect(bounds()));
}

void BezierPath::rotateByRadians(float angle, Point aroundCenterPoint) {
    if (angle == 0) return;
    AffineTransform transform;
    transform.translate(aroundCenterPoint.x, aroundCenterPoint.y);
    transform.rotate(angle);
    transform.translate(-aroundCenterPoint.x, -aroundCenterPoint.y);
    transformUsingAffineTransform(transform);
}

void BezierPath::rotateByDegrees(float angle) {
    if (angle == 0) return;
    rotateByDegrees(angle, centerOfRect(bounds()));
}

void BezierPath::rotateByDegrees(float angle, Point aroundCenterPoint) {
    if (angle == 0) return;
    rotateByRadians(radiansFromDegrees(angle), aroundCenterPoint);
}

void BezierPath::translateXBy(double dx, double yBy) {
    if (dx == 0 && yBy == 0) return;
    changeEach(elements_, [&](Point point) { return Point{point.x + dx, point.y + yBy}; });
}

void BezierPath::scaleBy(double factor) {
    if (factor == 1) return;
    changeEach(elements_, [&](Point point) { return Point{point.x * factor, point.y * factor}; });
}

BezierPath BezierPath::insetPathBy(double inset) const {
    const auto [origin, size] = bounds();
    if (inset == 0 || (size.width == 0 && size.height == 0)) return *this;
    const Point center = centerOfRect(bounds());
    AffineTransform transform;
    transform.translate(center.x, center.y);
    transform.scale(size.width == 0 ? 1 : (size.width - 2 * inset) / size.width,
                    size.height == 0 ? 1 : (size.height - 2 * inset) / size.height);
    transform.translate(-center.x, -center.y);
    BezierPath copy = *this;
    copy.transformUsingAffineTransform(transform);
    return copy;
}

}  // namespace QZCore
