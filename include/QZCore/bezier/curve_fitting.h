// Smooth curves from the polylines of freehand strokes.
//
// The fitting is a least-squares fit of cubics to digitised points. Its error is
// the square of the largest distance from a point to the curve. A run of points
// that cannot be fitted gives an empty path, and the caller keeps the polyline: more
// than 256 curves would be needed, as for noisy strokes with a small error, a point is
// infinite or beyond 1e60, or the error is negative or NaN.
#pragma once

#include "QZCore/bezier/bezier_path.h"
#include "QZCore/export.h"

namespace QZCore {

/// Curves through the first points of all elements, in order. A path of fewer than
/// three elements is returned as it is.
[[nodiscard]] QZ_EXPORT BezierPath curveFitPath(const BezierPath& path, float error);

/// Fits each run of lines between corners, and keeps the corners and curves. A corner
/// is where two lines differ in direction by more than `cornerAngle` radians; the
/// difference is not brought within half a turn, so a run is cut as well where the
/// direction passes the negative x axis. A run at the end of the path that neither a
/// close-path nor a corner ends is dropped. Has the winding rule of `path`.
[[nodiscard]] QZ_EXPORT BezierPath smartCurveFitPath(const BezierPath& path, float error,
                                                     float cornerAngle);

/// Appends the elements of `source`, the first one only if it is no move-to.
QZ_EXPORT void appendBezierPathRemovingInitialMoveToPoint(BezierPath& destination,
                                                          const BezierPath& source);

QZ_BEGIN_C

/// The turn at `b` on the way from `a` to `c` in radians: the direction from `a` to
/// `b` less that from `b` to `c`, between -2 pi and 2 pi.
[[nodiscard]] QZ_EXPORT float AngleBetween(Point a, Point b, Point c);

QZ_END_C

}  // namespace QZCore
