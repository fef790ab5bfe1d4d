#include "bezier/trimming.h"

#include <algorithm>
#include <cmath>
#include <compare>

#include "QZCore/bezier/cubics.h"
#include "bezier/element_ends.h"
#include "bezier/length_bounds.h"
#include "bezier/path_measures.h"

namespace QZCore {
namespace {

/// The part of a line that is `remaining` of its `length` long.
PathPiece cutLine(const PathStep& step, double remaining, double length) {
    const double t = length == 0 ? 0 : remaining / length;
    const Point end = step.end();
    const Point cut{step.current.x + t * (end.x - step.current.x),
                    step.current.y + t * (end.y - step.current.y)};
    return {PathElementType::LineTo, {cut}, t};
}

/// How a length compares to the measure of a segment, which is within `maxError` the
/// same. The segment is measured only if that is not clear without.
std::partial_ordering compared(double length, const Point* segment, float maxError) {
    const LengthBounds bounds = boundsOfLength(segment, maxError / 2);
    if (length - maxError > bounds.most) return std::partial_ordering::greater;
    if (length + maxError < bounds.least) return std::partial_ordering::less;
    const double measured = lengthOfBezier(segment, maxError / 2);
    if (std::abs(length - measured) < maxError) return std::partial_ordering::equivalent;
    return length <=> measured;
}

/// The part of a curve that is `remaining` long, found by bisection.
PathPiece cutCurve(const PathStep& step, double remaining, float maxError) {
    const Point segment[] = {step.current, step.points[0], step.points[1], step.points[2]};
    Point left[4];
    float low = 0;
    float high = 1;
    float t = 0.5F;
    for (float before = -1; t != before;) {
        subdivideBezierAtT(segment, left, nullptr, t);
        const std::partial_ordering order = compared(remaining, left, maxError);
        before = t;
        if (order > 0) {
            low = t;
            t = (high + t) / 2;
        } else if (order < 0) {
            high = t;
            t = (low + t) / 2;
        }
    }
    return {PathElementType::CurveTo, {left[1], left[2], left[3]}, t};
}

PathPiece cutElement(const PathStep& step, double remaining, float length, float maxError) {
    return step.type == PathElementType::CurveTo ? cutCurve(step, remaining, maxError)
                                                 : cutLine(step, remaining, length);
}

/// The cut, where the running totals are known.
std::optional<PathCut> cutByTotals(const detail::PathElements& elements,
                                   const detail::PathMeasures& measures, float length) {
    const auto& totals = measures.totals;
    auto index =
        static_cast<std::size_t>(std::ranges::upper_bound(totals, length) - totals.begin());
    while (index < totals.size() && elements.typeAt(index) == PathElementType::MoveTo) ++index;
    if (index == totals.size()) return std::nullopt;
    const float before = index == 0 ? 0 : totals[index - 1];
    const PathStep step = stepAt(elements, index);
    const float own = lengthOfElement(step, kMeasuringError);
    const double remaining = static_cast<double>(length) - before;
    return PathCut{index, cutElement(step, remaining, own, kMeasuringError)};
}

}  // namespace

std::optional<PathCut> cutAtLength(const detail::PathElements& elements, float length,
                                   float maxError) {
    if (maxError == kMeasuringError) {
        const detail::PathMeasures* measures = elements.measures();
        if (measures != nullptr && !std::isnan(measures->totals.back()) && !std::isnan(length)) {
            return cutByTotals(elements, *measures, length);
        }
    }
    float total = 0;
    std::size_t index = 0;
    for (const PathStep& step : PathSteps(elements)) {
        const float own = lengthOfElement(step, maxError);
        const float after = total + own;
        if (step.type != PathElementType::MoveTo && after > length) {
            const double remaining = static_cast<double>(length) - total;
            return PathCut{index, cutElement(step, remaining, own, maxError)};
        }
        total = after;
        ++index;
    }
    return std::nullopt;
}

}  // namespace QZCore
