#include "bezier/crossings.h"

#include <algorithm>
#include <cmath>

#include "QZCore/geometry/points.h"
#include "bezier/cubic_roots.h"

namespace QZCore {
namespace {

// Runs shorter than this count as none along their axis.
constexpr double kNoRun = 0.001;

bool isOnElement(double time) {
    return time >= -kCrossingTolerance && time <= 1 + kCrossingTolerance;
}

/// Sets a run along an axis that counts as none to 0. False when the line has none
/// either, so that both are parallel.
bool straighten(double& run, double runOfLine) {
    if (!(std::abs(run) < kNoRun)) return true;
    run = 0;
    return !(std::abs(runOfLine) < kNoRun);
}

/// The curve in the line's implicit equation: how far it is from the line, times the
/// line's length.
CubicPolynomial distanceToLine(const CurveRecord& curve, const LineRecord& line) {
    const Point& e = line.direction;
    return {crossProduct(e, curve.a), crossProduct(e, curve.b), crossProduct(e, curve.c),
            crossProduct(e, subtractPointByPoint(curve.start, line.origin))};
}

/// Whether the curve stays on one side, as its control points then do. They have to
/// be so far away that it does so beyond its ends as well.
bool staysOnOneSide(const CubicPolynomial& f) {
    const double values[] = {f.d, f.d + f.c / 3, f.d + (2 * f.c + f.b) / 3, f.d + f.c + f.b + f.a};
    const auto [low, high] = std::minmax_element(std::begin(values), std::end(values));
    const double margin = 10 * kCrossingTolerance * (*high - *low);
    return *low > margin || *high < -margin;
}

}  // namespace

bool straightLineIntersection(double* lineTime, double* time, const LineRecord& segment,
                              const LineRecord& line) {
    const auto& [s, run] = segment;
    const auto& [q, e] = line;
    double dx = run.x;
    double dy = run.y;
    if (std::abs(dx) < kNoRun && std::abs(dy) < kNoRun) return false;
    if (!straighten(dx, e.x) || !straighten(dy, e.y)) return false;

    const double u = ((s.x * dy - s.y * dx) - (dy * q.x - dx * q.y)) / (e.x * dy - e.y * dx);
    if (u < -kCrossingTolerance || u > 1 + kCrossingTolerance) return false;
    const double along = dx != 0 ? (q.x - s.x + e.x * u) / dx : (q.y - s.y + e.y * u) / dy;
    if (!isOnElement(along)) return false;
    *lineTime = u;
    *time = along;
    return true;
}

int curvedIntersection(CrossingTimes& lineTime, CrossingTimes& time, const CurveRecord& curve,
                       const LineRecord& line) {
    const CubicPolynomial distance = distanceToLine(curve, line);
    if (staysOnOneSide(distance)) return 0;
    const CubicRoots roots = rootsOf(distance);
    const double squaredLength = dotProduct(line.direction, line.direction);
    std::size_t count = 0;
    for (int i = 0; i < roots.count; ++i) {
        const double t = roots.t[static_cast<std::size_t>(i)];
        const Point fromOrigin = subtractPointByPoint(pointAt(curve, t), line.origin);
        const double u = dotProduct(fromOrigin, line.direction) / squaredLength;
        if (!isOnElement(t) || !isOnElement(u)) continue;
        time[count] = t;
        lineTime[count++] = u;
    }
    return static_cast<int>(count);
}

}  // namespace QZCore
