// Curves as lines that follow them closely.
#pragma once

#include "bezier/curve_records.h"
#include "bezier/path_steps.h"

namespace QZCore {

/// How many lines follow a curve to within the flatness of paths.
[[nodiscard]] int flatPiecesOf(const PathStep& curve);

/// Calls `visit` with the end of each line that an element becomes.
template <class Visit>
void visitFlatEnds(const PathStep& step, Visit visit) {
    if (step.type == PathElementType::CurveTo) {
        const Point* p = step.points;
        const CurveRecord curve = parameterizeCurve(step.current, p[2], p[0], p[1]);
        const int pieces = flatPiecesOf(step);
        const double stretch = 1.0 / pieces;
        for (int i = 1; i < pieces; ++i) visit(pointAt(curve, i * stretch));
    }
    visit(step.end());
}

}  // namespace QZCore
