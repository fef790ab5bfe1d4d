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

/// How much the second of three control points is off the middle of the others, squared.
double squaredBend(Point a, Point b, Point c) {
    const Point off{a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y};
    return dotProduct(off, off);
}

}  // namespace

int flatPiecesOf(const PathStep& curve) {
    const Point* p = curve.points;
    const double bent =
        std::sqrt(std::max(squaredBend(curve.current, p[0], p[1]), squaredBend(p[0], p[1], p[2])));
    // A chord over a stretch h of the parameter is off by at most h² / 8 times the
    // second derivative, which is at most 6 times the bend.
    const double squaredPieces = 0.75 * bent / kFlatness;
    if (!(squaredPieces > 1)) return 1;
    const double pieces = std::min<double>(std::sqrt(squaredPieces), kMostPieces);
    const int whole = static_cast<int>(pieces);
    return whole < pieces ? whole + 1 : whole;
}

BezierPath BezierPath::bezierPathByFlatteningPath() const {
    BezierPath flat = *this;
    flat.removeAllPoints();
    std::array<Point, 64> ends;
    std::size_t count = 0;
    const auto appendEnds = [&] {
        flat.elements_.appendLines(ends.data(), count);
        count = 0;
    };
    for (const PathStep& step : PathSteps(elements_)) {
        if (step.type == PathElementType::MoveTo || step.type == PathElementType::ClosePath) {
            appendEnds();
            flat.elements_.append(step.type, step.points);
            continue;
        }
        visitFlatEnds(step, [&](Point end) {
            if (count == ends.size()) appendEnds();
            ends[count++] = end;
        });
    }
    appendEnds();
    return flat;
}

}  // namespace QZCore
