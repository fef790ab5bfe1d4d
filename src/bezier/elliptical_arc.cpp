#include "bezier/elliptical_arc.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "bezier/arcs.h"
#include "bezier/finite.h"

namespace QZCore {
namespace {

constexpr double kQuarterTurn = std::numbers::pi / 2;

/// The map from the unit circle about (0, 0) to an ellipse.
class Ellipse {
public:
    explicit Ellipse(const EllipticalArc& arc)
        : center_{arc.start.x / 2 + arc.end.x / 2, arc.start.y / 2 + arc.end.y / 2} {
        const double angle = std::fmod(arc.rotation, 360) * (std::numbers::pi / 180);
        const double radiusX = std::abs(arc.radiusX);
        const double radiusY = std::abs(arc.radiusY);
        axisX_ = {std::cos(angle) * radiusX, std::sin(angle) * radiusX};
        axisY_ = {-std::sin(angle) * radiusY, std::cos(angle) * radiusY};
    }

    /// Where on the circle the point belongs.
    [[nodiscard]] Point onCircle(Point point) const {
        const Point d{point.x - center_.x, point.y - center_.y};
        return {(d.x * axisX_.x + d.y * axisX_.y) / (axisX_.x * axisX_.x + axisX_.y * axisX_.y),
                (d.x * axisY_.x + d.y * axisY_.y) / (axisY_.x * axisY_.x + axisY_.y * axisY_.y)};
    }
    [[nodiscard]] Point onEllipse(Point point) const {
        return {center_.x + point.x * axisX_.x + point.y * axisY_.x,
                center_.y + point.x * axisX_.y + point.y * axisY_.y};
    }
    void scale(double factor) {
        axisX_ = {axisX_.x * factor, axisX_.y * factor};
        axisY_ = {axisY_.x * factor, axisY_.y * factor};
    }
    void moveCenter(Point onCircle) { center_ = onEllipse(onCircle); }

private:
    Point center_;
    Point axisX_;
    Point axisY_;
};

/// An ellipse and the part of its circle that is meant.
struct ArcOnCircle {
    Ellipse ellipse;
    double startAngle;
    double turn;
};

/// The angle from one direction to another, in the sense that is wanted.
double turnBetween(Point from, Point to, bool isGrowing) {
    const double turn = std::atan2(from.x * to.y - from.y * to.x, from.x * to.x + from.y * to.y);
    if (isGrowing) return turn < 0 ? turn + 4 * kQuarterTurn : turn;
    return turn > 0 ? turn - 4 * kQuarterTurn : turn;
}

ArcOnCircle placed(const EllipticalArc& arc) {
    Ellipse ellipse(arc);
    // 1. About the middle of both points, the start is at `half` and the end opposite.
    Point half = ellipse.onCircle(arc.start);
    const double distance = std::hypot(half.x, half.y);
    if (distance > 1) {
        ellipse.scale(distance);
        half = {half.x / distance, half.y / distance};
    }
    // 2. The centre is off that line, on one side or the other.
    const double reach = std::min(distance, 1.0);
    const double offset = std::sqrt(1 - reach * reach) / reach;
    const double side = arc.isLarge != arc.isGrowing ? offset : -offset;
    const Point center{half.y * side, -half.x * side};
    ellipse.moveCenter(center);
    // 3. Both ends are seen from there.
    const Point start{half.x - center.x, half.y - center.y};
    const Point end{-half.x - center.x, -half.y - center.y};
    return {ellipse, std::atan2(start.y, start.x), turnBetween(start, end, arc.isGrowing)};
}

/// The points of the curves: for each its control points and its end. None when the
/// numbers are beyond the doubles.
std::vector<Point> curvesAlong(const ArcOnCircle& arc) {
    constexpr double kRoundingErrors = 1e-9;
    if (!std::isfinite(arc.turn)) return {};
    const double quarters = std::ceil(std::abs(arc.turn) / kQuarterTurn - kRoundingErrors);
    const int count = std::max(1, static_cast<int>(quarters));
    const double handle = 4.0 / 3 * std::tan(arc.turn / count / 4);
    std::vector<Point> points;
    for (int i = 0; i < count; ++i) {
        const Point p = directionAt(arc.startAngle + arc.turn * i / count);
        const Point q = directionAt(arc.startAngle + arc.turn * (i + 1) / count);
        points.push_back(arc.ellipse.onEllipse({p.x - handle * p.y, p.y + handle * p.x}));
        points.push_back(arc.ellipse.onEllipse({q.x + handle * q.y, q.y - handle * q.x}));
        points.push_back(arc.ellipse.onEllipse(q));
    }
    return std::ranges::all_of(points, isFinite) ? points : std::vector<Point>();
}

}  // namespace

void appendEllipticalArc(BezierPath& path, const EllipticalArc& arc) {
    if (arc.start == arc.end) return;
    std::vector<Point> points;
    if (arc.radiusX != 0 && arc.radiusY != 0) points = curvesAlong(placed(arc));
    if (points.empty()) return path.lineToPoint(arc.end);
    points.back() = arc.end;
    for (std::size_t i = 0; i < points.size(); i += 3) {
        path.curveToPoint(points[i + 2], points[i], points[i + 1]);
    }
}

}  // namespace QZCore
