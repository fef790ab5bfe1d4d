// Crossings of two cubic curves.
#pragma once

#include <array>

#include "QZCore/geometry/plane.h"
#include "bezier/crossing_sink.h"

namespace QZCore {

/// Start, control points, end.
using CubicPoints = std::array<Point, 4>;

/// Gives the sink the positions of crossings along `onCurve`, which is the stretch of
/// a whole curve from `bezierLowPosition` on that is `bezierInterval` long. Halves
/// both curves where their boxes overlap, until `otherCurve` is flat to within half
/// the line width and 1. Whether the sink has had enough.
///
/// Where the curves lie on each other, pieces beside each other report positions of
/// their own. A box without an area overlaps none, so that a level or upright curve
/// is never crossed.
bool addCurveToCurveIntersections(CrossingSink& sink, const CubicPoints& onCurve,
                                  const CubicPoints& otherCurve, double lineWidth,
                                  double bezierLowPosition, double bezierInterval);

}  // namespace QZCore
