#include "bezier/flattening.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "QZCore/bezier/bezier_path.h"

namespace QZCore {
namespace {

/// How far the lines may be from the curve.
constexpr double kFlatness = 0.1;
// Enough for curves of 100,000 units; larger ones are followed to within a millionth
// of their size.
constexpr int kMostPieces = 1024;

/// How much the second of three control points is off the middle of the others.
double bend(Point a, Point b, Point c) {
    const Point off{a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y};
    return std::sqrt(dotProduct(off, off));
}

}  // namespace

int flatPiecesOf(const PathStep& curve) {
    const Point* p = curve.points;
    const double bent = std::max(bend(curve.current, p[0], p[1]), bend(p[0], p[1], p[2]));
    // A chord over a stretch h of the parameter is off by at most h² / 8 times the
    // second derivative, which is at most 6 times the bend.
    const double pieces = std::ceil(std::sqrt(0.75 * bent / kFlatness));
    return pieces > 1 ? static_cast<int>(std::fmin(pieces, kMostPieces)) : 1;
}

BezierPath BezierPath::bezierPathByFlatteningPath() const {
    BezierPath flat = *this;
    flat.removeAllPoints();
    std::array<Point, 64> ends;
    for (const PathStep& step : PathSteps(elements_)) {
        if (step.type != PathElementType::CurveTo) {
            flat.elements_.append(step.type, step.points);
            continue;
        }
        std::size_t count = 0;
        visitFlatEnds(step, [&](Point end) {
            ends[count++] = end;
            if (count < ends.size()) return;
            flat.elements_.appendLines(ends.data(), count);
            count = 0;
        });
        flat.elements_.appendLines(ends.data(), count);
    }
    return flat;
}

}  // namespace QZCore
