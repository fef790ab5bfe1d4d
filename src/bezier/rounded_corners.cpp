#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "QZCore/bezier/bezier_path.h"
#include "bezier/path_steps.h"

namespace QZCore {
namespace {

/// The point at the share `t` of the way from `a` to `b`.
Point between(Point a, Point b, double t) { return {a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)}; }

/// An element of a subpath that is drawn.
struct Leg {
    PathStep step;
    Point end;
    /// The length of a line; NaN for a curve.
    double length;

    [[nodiscard]] Point start() const { return step.current; }
    /// The way from start to end of a line, made 1 long.
    [[nodiscard]] Point direction() const {
        return {(end.x - start().x) / length, (end.y - start().y) / length};
    }
};

Leg legOf(const PathStep& step) {
    const Point end = step.end();
    const double length = step.type == PathElementType::CurveTo
                              ? std::numeric_limits<double>::quiet_NaN()
                              : std::hypot(end.x - step.current.x, end.y - step.current.y);
    return {step, end, length};
}

/// The point at a distance from `apex` on the line to `end`, which is `length` long.
Point along(Point apex, Point end, double length, double distance) {
    if (distance == length) return end;
    return {apex.x + (end.x - apex.x) / length * distance,
            apex.y + (end.y - apex.y) / length * distance};
}

/// The tangent of half the angle by which the way turns from one leg to the next:
/// 1 for a right angle, 0 where no arc can stand: at curves, and where the way goes
/// straight on or straight back, but for rounding errors.
double turnBetween(const Leg& before, const Leg& after) {
    constexpr double kStraightOn = 1e-6;
    constexpr double kStraightBack = 1000;
    const Point u = before.direction();
    const Point v = after.direction();
    const double turn = std::abs(u.x * v.y - u.y * v.x) / (1 + u.x * v.x + u.y * v.y);
    return turn > kStraightOn && turn < kStraightBack ? turn : 0;
}

/// Of the tangent of an angle, which share of it half of the angle has.
double shareOfHalfAngle(double tangent) { return 1 / (1 + std::sqrt(1 + tangent * tangent)); }

/// Appends the arc that touches the lines from `start` to `apex` and from there to
/// `end`, for a turn of at most a right angle.
void appendArc(BezierPath& path, Point start, Point apex, Point end, double turn) {
    const double handle = 4.0 / 3 * shareOfHalfAngle(turn);
    path.curveToPoint(end, between(start, apex, handle), between(end, apex, handle));
}

/// The same for any turn, in two arcs when it is more than a right angle.
void appendCornerArc(BezierPath& path, Point start, Point apex, Point end, double turn) {
    constexpr double kRightAngle = 1 + 1e-9;
    if (turn <= kRightAngle) return appendArc(path, start, apex, end, turn);
    const double share = shareOfHalfAngle(turn);
    const Point firstApex = between(start, apex, share);
    const Point secondApex = between(end, apex, share);
    const Point middle = between(firstApex, secondApex, 0.5);
    appendArc(path, start, firstApex, middle, turn * share);
    appendArc(path, middle, secondApex, end, turn * share);
}

/// Copies a path, subpath by subpath, and rounds its corners.
class CornerRounder {
public:
    /// Subpaths have at most `mostLegs` elements.
    CornerRounder(BezierPath& rounded, double radius, std::size_t mostLegs)
        : rounded_(rounded), radius_(radius) {
        legs_.reserve(mostLegs);
    }

    void add(const PathStep& step) {
        if (step.type == PathElementType::MoveTo) {
            finish();
            begin(step.points[0]);
            return;
        }
        if (!isOpen_) begin(step.current);
        const Leg leg = legOf(step);
        if (leg.length != 0) legs_.push_back(leg);
        if (step.type != PathElementType::ClosePath) return;
        isClosed_ = true;
        finish();
    }

    /// Appends the subpath that was begun.
    void finish() {
        if (!std::exchange(isOpen_, false)) return;
        findTurns();
        const bool startsRounded = turns_.front() > 0;
        rounded_.moveToPoint(startsRounded ? arcAt(0).end : start_);
        for (std::size_t i = 0; i < legs_.size(); ++i) appendLeg(i);
        if (isClosed_) rounded_.closePath();
    }

private:
    struct Arc {
        Point start;
        Point apex;
        Point end;
    };

    void begin(Point start) {
        isOpen_ = true;
        isClosed_ = false;
        start_ = start;
        legs_.clear();
    }

    /// Notes the turn at the start of every leg; that of the first one, and again at
    /// the end, for a closed subpath.
    void findTurns() {
        const std::size_t count = legs_.size();
        turns_.assign(count + 1, 0);
        for (std::size_t i = 1; i < count; ++i) turns_[i] = turnBetween(legs_[i - 1], legs_[i]);
        if (!isClosed_ || count == 0) return;
        turns_.front() = turnBetween(legs_.back(), legs_.front());
        turns_.back() = turns_.front();
    }

    /// How much of a line an arc may take.
    [[nodiscard]] double roomOn(std::size_t leg) const {
        const bool isShared = turns_[leg] > 0 && turns_[leg + 1] > 0;
        return legs_[leg].length * (isShared ? 0.5 : 1);
    }

    /// The arc at the start of a leg, or at the end of the last one.
    [[nodiscard]] Arc arcAt(std::size_t corner) const {
        const std::size_t before = (corner == 0 ? legs_.size() : corner) - 1;
        const std::size_t after = corner == legs_.size() ? 0 : corner;
        const double reach = std::min({radius_ * turns_[corner], roomOn(before), roomOn(after)});
        const Leg& in = legs_[before];
        const Leg& out = legs_[after];
        const Point apex = out.start();
        return {along(apex, in.start(), in.length, reach), apex,
                along(apex, out.end, out.length, reach)};
    }

    void appendLeg(std::size_t i) {
        const auto& [step, end, length] = legs_[i];
        const double turn = turns_[i + 1];
        if (turn > 0) {
            const Arc arc = arcAt(i + 1);
            appendLine(arc.start);
            appendCornerArc(rounded_, arc.start, arc.apex, arc.end, turn);
        } else if (step.type == PathElementType::CurveTo) {
            rounded_.curveToPoint(end, step.points[0], step.points[1]);
        } else if (step.type == PathElementType::LineTo) {
            appendLine(end);
        }
    }

    void appendLine(Point end) {
        if (end != rounded_.currentPoint()) rounded_.lineToPoint(end);
    }

    BezierPath& rounded_;
    double radius_;
    std::vector<Leg> legs_;
    std::vector<double> turns_;
    Point start_;
    bool isOpen_ = false;
    bool isClosed_ = false;
};

}  // namespace

BezierPath BezierPath::bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(double radius) const {
    BezierPath rounded = *this;
    if (!(radius > 0)) return rounded;
    rounded.removeAllPoints();
    CornerRounder rounder(rounded, radius, elementCount());
    for (const PathStep& step : PathSteps(elements_)) rounder.add(step);
    rounder.finish();
    return rounded;
}

}  // namespace QZCore
