#include "QZCore/geometry/intersections.h"

#include <array>

#include "QZCore/geometry/rectangles.h"
#include "foundation/single_precision.h"

namespace QZCore {
namespace {

/// Whether the stretches from `a1` to `a2` and from `b1` to `b2` along one axis
/// are apart. `a` is the float difference a2 - a1, `b` is b1 - b2.
bool areApart(double a1, double a2, float a, double b1, double b2, float b) {
    const float low = f32(a < 0 ? a2 : a1);
    const float high = f32(a < 0 ? a1 : a2);
    return b > 0 ? high < b2 || b1 < low : high < b1 || b2 < low;
}

/// Whether `part` / `whole` is from 0 to 1, for a whole that is not 0.
bool isPartOf(float part, float whole) {
    return whole > 0 ? !(part < 0 || part > whole) : !(part > 0 || part < whole);
}

/// How far along one axis the crossing is from the segment's start: `part` /
/// `whole` of `length`, and half a unit away from the start.
float offsetOfCrossing(float part, float whole, float length) {
    const float product = part * length;
    const bool sameSigns = (product >= 0) == (whole >= 0);
    const float half = 0.5F * whole;
    return (product + (sameSigns ? half : -half)) / whole;
}

}  // namespace

bool intersectionOfLineSegments(Point* out, Point a1, Point a2, Point b1, Point b2) {
    // 1. The bounding boxes have to meet.
    const float ax = f32(a2.x - a1.x);
    const float bx = f32(b1.x - b2.x);
    if (areApart(a1.x, a2.x, ax, b1.x, b2.x, bx)) return false;
    const float ay = f32(a2.y - a1.y);
    const float by = f32(b1.y - b2.y);
    if (areApart(a1.y, a2.y, ay, b1.y, b2.y, by)) return false;

    // 2. The lines cross at these parts of the segments; parallel ones do not.
    const float cx = f32(a1.x - b1.x);
    const float cy = f32(a1.y - b1.y);
    const float partOfA = by * cx - bx * cy;
    const float partOfB = ax * cy - ay * cx;
    const float whole = ay * bx - ax * by;
    if (!isPartOf(partOfA, whole) || !isPartOf(partOfB, whole) || whole == 0) return false;

    // 3. The point is moved by half a unit along each axis. Deliberate: hit
    //    areas are tuned with it.
    if (out != nullptr) {
        *out = {a1.x + offsetOfCrossing(partOfA, whole, ax),
                a1.y + offsetOfCrossing(partOfA, whole, ay)};
    }
    return true;
}

bool intersectionOfRectWithLine(Point* out, Rect rect, Point a, Point b) {
    const Point topLeft = topLeftOfRect(rect);
    const Point topRight = topRightOfRect(rect);
    const Point bottomLeft = bottomLeftOfRect(rect);
    const Point bottomRight = bottomRightOfRect(rect);
    return intersectionOfLineSegments(out, a, b, topLeft, topRight) ||
           intersectionOfLineSegments(out, a, b, topRight, bottomRight) ||
           intersectionOfLineSegments(out, a, b, bottomLeft, bottomRight) ||
           intersectionOfLineSegments(out, a, b, topLeft, bottomLeft);
}

bool intersectionOfRectWithLineFromCenterToRemotePoint(Point* out, Rect rect, Point remote) {
    return intersectionOfRectWithLine(out, rect, centerOfRect(rect), remote);
}

}  // namespace QZCore
