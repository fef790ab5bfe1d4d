#include "bezier/stroke_hits.h"

#include <array>
#include <cmath>

#include "QZCore/geometry/distances.h"
#include "QZCore/geometry/points.h"
#include "bezier/curve_records.h"
#include "foundation/single_precision.h"

namespace QZCore {
namespace {

constexpr int kRounds = 12;
constexpr double kDamping = 0.75;

/// A value between 0 and 1; NaN counts as 0.
double clampedToUnit(double value) { return value > 0 ? (value < 1 ? value : 1) : 0; }

void write(float* out, double value) {
    if (out != nullptr) *out = f32(value);
}

/// The square of the distance between a point and the curve, a polynomial in t.
class SquaredDistance {
public:
    SquaredDistance(const CurveRecord& curve, Point point) {
        const Point d0 = subtractPointByPoint(curve.start, point);
        const auto& [start, c, b, a] = curve;
        k_ = {dotProduct(d0, d0),
              2 * dotProduct(d0, c),
              2 * dotProduct(d0, b) + dotProduct(c, c),
              2 * (dotProduct(d0, a) + dotProduct(c, b)),
              2 * dotProduct(c, a) + dotProduct(b, b),
              2 * dotProduct(b, a),
              dotProduct(a, a)};
    }
    [[nodiscard]] double at(double t) const {
        return (((((k_[6] * t + k_[5]) * t + k_[4]) * t + k_[3]) * t + k_[2]) * t + k_[1]) * t +
               k_[0];
    }
    [[nodiscard]] double slopeAt(double t) const {
        return ((((6 * k_[6] * t + 5 * k_[5]) * t + 4 * k_[4]) * t + 3 * k_[3]) * t + 2 * k_[2]) *
                   t +
               k_[1];
    }

private:
    std::array<double, 7> k_;
};

/// Where the search begins. That the chord's horizontal extent is absent from the
/// denominator is wanted: hits are tuned with it.
double firstGuess(Point point, Point start, Point end) {
    const double along =
        (point.x - std::fmin(start.x, end.x)) + (point.y - std::fmin(start.y, end.y));
    const double extent = std::abs(end.y - start.y) + std::abs(start.x - point.x) +
                          std::abs(end.x - point.x) + std::abs(start.y - point.y) +
                          std::abs(end.y - point.y);
    return clampedToUnit(along / extent);
}

}  // namespace

HitRadius::HitRadius(double lineWidth, float padding)
    : isNearestMode(padding == kNearestPadding),
      ofLines(isNearestMode ? f32(lineWidth * 0.5) : f32(lineWidth * 0.5) + padding) {
    const double ofCurves = isNearestMode ? lineWidth / 2 : lineWidth / 2 + padding;
    squaredOfCurves = ofCurves * ofCurves;
}

bool straightLineHit(Point a, Point b, Point point, float* position, const HitRadius& radius,
                     float* distanceSquared) {
    const Point line = subtractPointByPoint(b, a);
    const float length = f32(std::sqrt(dotProduct(line, line)));
    if (length == 0) return false;
    const Point unit{line.x / length, line.y / length};
    const float along = f32(dotProduct(subtractPointByPoint(point, a), unit));
    const Point foot{a.x + along * unit.x, a.y + along * unit.y};
    const float squared = distanceSquaredBetweenPoints(point, foot);
    if (distanceSquared != nullptr) *distanceSquared = squared;

    const double reach = radius.ofLines;
    if (!(radius.isNearestMode || squared < reach * reach)) return false;
    const float share = along / length;
    if (share >= 0 && share <= 1) {
        write(position, share);
        return true;
    }
    const bool isEndCloser =
        distanceSquaredBetweenPoints(point, b) <= distanceSquaredBetweenPoints(point, a);
    write(position, isEndCloser ? 1 : 0);
    return false;
}

bool curvedLineHit(Point point, Point startPoint, Point endPoint, Point controlPoint1,
                   Point controlPoint2, float* position, const HitRadius& radius,
                   float* distanceSquared) {
    write(distanceSquared, 0);
    const SquaredDistance distance(
        parameterizeCurve(startPoint, endPoint, controlPoint1, controlPoint2), point);
    const bool wantsAnswerOnly = position == nullptr && distanceSquared == nullptr;
    double t = firstGuess(point, startPoint, endPoint);
    double best = kFarthestSquaredDistance;
    for (int round = 1; round <= kRounds; ++round) {
        const double squared = distance.at(t);
        if (squared < best) {
            best = squared;
            write(distanceSquared, squared);
            write(position, t);
        }
        const bool isHit = best <= radius.squaredOfCurves;
        if (wantsAnswerOnly && isHit) return true;  // as every later round answers
        if (round == kRounds && (isHit || radius.isNearestMode)) return true;
        // Ends at the start of the curve even where the search could still turn
        // back. Wanted: hits are tuned with it.
        if ((t == 0 && squared > 0) || (t == 1 && squared < 0)) return isHit;
        t = clampedToUnit(t - kDamping * squared / distance.slopeAt(t));
    }
    return false;
}

bool isStepHit(const PathStep& step, Point point, float* position, const HitRadius& radius,
               float* distanceSquared) {
    switch (step.type) {
        case PathElementType::MoveTo:
            return false;
        case PathElementType::CurveTo:
            return curvedLineHit(point, step.current, step.points[2], step.points[0],
                                 step.points[1], position, radius, distanceSquared);
        case PathElementType::LineTo:
        case PathElementType::ClosePath:
            break;
    }
    return straightLineHit(step.current, step.end(), point, position, radius, distanceSquared);
}

}  // namespace QZCore
