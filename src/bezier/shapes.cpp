#include <algorithm>
#include <array>
#include <cstdlib>
#include <initializer_list>
#include <memory>

#include "QZCore/bezier/bezier_path.h"
#include "QZCore/geometry/hull.h"
#include "QZCore/geometry/rectangles.h"
#include "bezier/arcs.h"
#include "geometry/containment.h"

namespace QZCore {
namespace {

/// Lines through all corners and back.
BezierPath closed(std::initializer_list<Point> corners) {
    BezierPath path;
    path.appendBezierPathWithPoints(corners.begin(), corners.size());
    path.closePath();
    return path;
}

}  // namespace

BezierPath BezierPath::bezierPathWithLineFromPoint(Point point, Point toPoint) {
    BezierPath path;
    path.moveToPoint(point);
    path.lineToPoint(toPoint);
    return path;
}

BezierPath BezierPath::bezierPathWithPointsArray(const std::vector<Point>& points) {
    BezierPath path;
    path.appendBezierPathWithPoints(points.data(), points.size());
    return path;
}

BezierPath BezierPath::bezierPathWithRect(Rect rect) {
    return closed({topLeftOfRect(rect), topRightOfRect(rect), bottomRightOfRect(rect),
                   bottomLeftOfRect(rect)});
}

BezierPath BezierPath::bezierPathWithTriangleInRect(Rect rect, RectEdge edge) {
    switch (edge) {
        case RectEdge::Left:
            return closed({leftCenterOfRect(rect), topRightOfRect(rect), bottomRightOfRect(rect)});
        case RectEdge::Top:
            return closed({topCenterOfRect(rect), bottomRightOfRect(rect), bottomLeftOfRect(rect)});
        case RectEdge::Right:
            return closed({rightCenterOfRect(rect), bottomLeftOfRect(rect), topLeftOfRect(rect)});
        case RectEdge::Bottom:
            return closed({bottomCenterOfRect(rect), topLeftOfRect(rect), topRightOfRect(rect)});
    }
    return {};
}

BezierPath BezierPath::bezierPathWithRoundRectInRect(Rect rect, double radius) {
    if (radius == 0) return bezierPathWithRect(rect);
    radius = std::min({radius, rect.size.width / 2, rect.size.height / 2});
    const Rect centers = outset(rect, -radius);
    BezierPath path;
    appendQuarterArc(path, {topLeftOfRect(centers), {-radius, 0}, {0, -radius}});
    appendQuarterArc(path, {topRightOfRect(centers), {0, -radius}, {radius, 0}});
    appendQuarterArc(path, {bottomRightOfRect(centers), {radius, 0}, {0, radius}});
    appendQuarterArc(path, {bottomLeftOfRect(centers), {0, radius}, {-radius, 0}});
    path.closePath();
    return path;
}

BezierPath BezierPath::bezierPathAsConvexHullContainingPoints(Point* points, std::int32_t count) {
    std::int32_t* indices = nullptr;
    const std::int32_t corners = convexHull(points, count, &indices);
    const std::unique_ptr<std::int32_t, decltype(&std::free)> owner(indices, std::free);
    BezierPath path;
    for (std::int32_t i = 0; i < corners; ++i) {
        path.appendBezierPathWithPoints(points + indices[i], 1);
    }
    path.closePath();
    return path;
}

BezierPath BezierPath::bezierPathAsConvexHullContainingRect(Rect rect1, Rect rect2) {
    std::array<Point, 8> corners{topLeftOfRect(rect1),     topRightOfRect(rect1),
                                 bottomRightOfRect(rect1), bottomLeftOfRect(rect1),
                                 topLeftOfRect(rect2),     topRightOfRect(rect2),
                                 bottomRightOfRect(rect2), bottomLeftOfRect(rect2)};
    return bezierPathAsConvexHullContainingPoints(corners.data(), corners.size());
}

}  // namespace QZCore
