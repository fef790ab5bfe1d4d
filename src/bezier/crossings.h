// Crossings of single elements with a line.
#pragma once

#include <array>

#include "bezier/curve_records.h"

namespace QZCore {

/// By how much a crossing may lie outside of an element or a line, as a share of
/// its extent, so that crossings at their ends are found.
inline constexpr double kCrossingTolerance = 0.0001;

/// Whether a segment crosses a line; where, as the parameters of both. Parallel ones
/// never cross, nor does a segment shorter than 0.001 along both axes.
bool straightLineIntersection(double* lineTime, double* time, const LineRecord& segment,
                              const LineRecord& line);

using CrossingTimes = std::array<double, 3>;

/// How often a curve crosses a line; where, as the parameters of both, those of the
/// curve in `time` from the smallest on.
int curvedIntersection(CrossingTimes& lineTime, CrossingTimes& time, const CurveRecord& curve,
                       const LineRecord& line);

}  // namespace QZCore
