#include "QZCore/bezier/bezier_path.h"
#include "bezier/curve_records.h"
#include "bezier/path_steps.h"

namespace QZCore {
namespace {

using Points = std::vector<Point>;

/// Solves x[i - 1] + diagonal[i] x[i] + x[i + 1] = right[i] by elimination. Every
/// diagonal exceeds what stands beside it, so no divisor is 0.
Points solved(std::vector<double> diagonal, Points right) {
    for (std::size_t i = 1; i < right.size(); ++i) {
        const double factor = 1 / diagonal[i - 1];
        diagonal[i] -= factor;
        right[i] = sumOf(right[i], -factor, right[i - 1]);
    }
    for (std::size_t i = right.size(); i-- > 0;) {
        if (i + 1 < right.size()) right[i] = sumOf(right[i], -1, right[i + 1]);
        right[i] = {right[i].x / diagonal[i], right[i].y / diagonal[i]};
    }
    return right;
}

/// The derivatives at the knots of a curve that is twice differentiable and does not
/// bend at its ends.
Points openTangents(const Points& knots) {
    const std::size_t last = knots.size() - 1;
    std::vector<double> diagonal(knots.size(), 4);
    diagonal.front() = diagonal.back() = 2;
    Points right(knots.size());
    for (std::size_t i = 0; i <= last; ++i) {
        const Point& next = knots[i == last ? last : i + 1];
        const Point& before = knots[i == 0 ? 0 : i - 1];
        right[i] = sumOf({3 * next.x, 3 * next.y}, -3, before);
    }
    return solved(std::move(diagonal), std::move(right));
}

/// The same for a closed curve of at least three knots, whose first and last equation
/// have a coefficient in each other's corner. Without the corners it is a system like
/// the one above; what they add is a multiple of one more solution of it.
Points closedTangents(const Points& knots) {
    const std::size_t count = knots.size();
    std::vector<double> diagonal(count, 4);
    diagonal.front() = diagonal.back() = 3;
    Points right(count);
    Points corners(count);
    corners.front() = corners.back() = {1, 1};
    for (std::size_t i = 0; i < count; ++i) {
        const Point& next = knots[(i + 1) % count];
        right[i] = sumOf({3 * next.x, 3 * next.y}, -3, knots[(i + count - 1) % count]);
    }
    Points tangents = solved(diagonal, std::move(right));
    const Points unit = solved(std::move(diagonal), std::move(corners));
    const double share = 1 + unit.front().x + unit.back().x;
    const Point factor{(tangents.front().x + tangents.back().x) / share,
                       (tangents.front().y + tangents.back().y) / share};
    for (std::size_t i = 0; i < count; ++i) {
        tangents[i] = {tangents[i].x - factor.x * unit[i].x, tangents[i].y - factor.y * unit[i].y};
    }
    return tangents;
}

/// Appends the curve through the knots, which are at least one.
void appendCurve(BezierPath& path, const Points& knots, const Points& tangents) {
    path.moveToPoint(knots[0]);
    for (std::size_t i = 1; i < knots.size(); ++i) {
        path.curveToPoint(knots[i], sumOf(knots[i - 1], 1.0 / 3, tangents[i - 1]),
                          sumOf(knots[i], -1.0 / 3, tangents[i]));
    }
}

void appendClosedCurve(BezierPath& path, Points knots) {
    if (knots.size() > 1 && knots.front() == knots.back()) knots.pop_back();
    Points tangents = knots.size() < 3 ? Points() : closedTangents(knots);
    knots.push_back(knots.front());
    if (tangents.empty()) {
        tangents = openTangents(knots);
    } else {
        tangents.push_back(tangents.front());
    }
    appendCurve(path, knots, tangents);
    path.closePath();
}

}  // namespace

BezierPath BezierPath::bezierPathCurveFittingThroughPointsOnPath(const BezierPath& path) {
    BezierPath curved = path;
    curved.removeAllPoints();
    Points knots;
    const auto endOpen = [&] {
        if (!knots.empty()) appendCurve(curved, knots, openTangents(knots));
        knots.clear();
    };
    for (const PathStep& step : PathSteps(path.elements())) {
        if (step.type == PathElementType::MoveTo) endOpen();
        if (step.type != PathElementType::MoveTo && knots.empty()) knots.push_back(step.current);
        if (step.type == PathElementType::ClosePath) {
            appendClosedCurve(curved, std::move(knots));
            knots.clear();
        } else {
            knots.push_back(step.end());
        }
    }
    endOpen();
    return curved;
}

}  // namespace QZCore
