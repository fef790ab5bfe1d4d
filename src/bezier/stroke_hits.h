// Hits of single elements: is a point on the stroke of a line, or of a curve?
#pragma once

#include "bezier/path_steps.h"

namespace QZCore {

/// The padding that asks for the nearest element instead of a hit.
inline constexpr float kNearestPadding = -1;

/// How close to the middle of the stroke a hit is.
struct HitRadius {
    HitRadius(double lineWidth, float padding);

    bool isNearestMode;
    float ofLines;  // rounded to single precision, as distances to lines are
    double squaredOfCurves;
};

// Both answer whether `point` is hit, and write, where there is a pointer and
// something to say: where along the element the closest place is, from 0 to 1, and
// the square of the distance to it.

/// The distance is that to the line through `a` and `b`, beyond its ends as well. A
/// point that is close to that line and beyond an end is no hit, and the position is
/// that of the closer end. A line without a length is not hit; nothing is written.
bool straightLineHit(Point a, Point b, Point point, float* position, const HitRadius& radius,
                     float* distanceSquared);

/// A search by damped Newton steps. It may stop short of the closest place, and sees
/// no farther than 316 units: the distance is then 0, and no position is written.
bool curvedLineHit(Point point, Point startPoint, Point endPoint, Point controlPoint1,
                   Point controlPoint2, float* position, const HitRadius& radius,
                   float* distanceSquared);

/// The square of how far the search along a curve sees.
inline constexpr double kFarthestSquaredDistance = 100000;

/// The one of both for an element; false for a move-to, of which nothing is drawn.
bool isStepHit(const PathStep& step, Point point, float* position, const HitRadius& radius,
               float* distanceSquared);

}  // namespace QZCore
