#include "QZCore/bezier/bezier_path.h"
#include "QZCore/bezier/cubics.h"
#include "bezier/element_ends.h"
#include "bezier/path_measures.h"
#include "bezier/trimming.h"

namespace QZCore {
namespace {

/// Where a path ends and in which direction.
struct PathEnd {
    Point point;
    float slope;
};

/// The end of an element with these points, which begins at `start`.
PathEnd endOf(PathElementType type, const Point* points, Point start, Point end) {
    return {end, Slope(type == PathElementType::CurveTo ? points[1] : start, end)};
}

/// The end of a path of at least two elements that is cut, or not.
PathEnd endAfter(const detail::PathElements& elements, const std::optional<PathCut>& cut) {
    if (!cut) {
        const PathStep last = stepAt(elements, elements.count() - 1);
        return endOf(last.type, last.points, last.current, last.end());
    }
    if (cut->index == 0) return {{}, 1};
    const auto& [type, points, t] = cut->piece;
    return endOf(type, points.data(), endOfElement(elements, cut->index - 1),
                 points[detail::pointCountOf(type) - 1]);
}

/// The direction at the start of a path of at least two elements.
PathEnd startOf(const detail::PathElements& elements) {
    const Point start =
        elements.typeAt(0) == PathElementType::ClosePath ? Point() : *elements.pointsAt(0);
    const bool closes = elements.typeAt(1) == PathElementType::ClosePath;
    return {start, Slope(start, closes ? start : *elements.pointsAt(1))};
}

/// The length of all elements before `index`.
float totalBefore(const detail::PathElements& elements, std::size_t index) {
    if (index == 0) return 0;
    if (const detail::PathMeasures* measures = elements.measures())
        return measures->totals[index - 1];
    float total = 0;
    for (const PathStep& step : PathSteps(elements)) {
        if (index-- == 0) break;
        total += lengthOfElement(step, kMeasuringError);
    }
    return total;
}

}  // namespace

double BezierPath::length() const { return elements_.length(); }

float BezierPath::lengthToSegment(std::size_t index, float* segmentLength) const {
    if (segmentLength != nullptr) *segmentLength = 0;
    if (index >= elementCount()) return 0;
    if (segmentLength != nullptr) {
        *segmentLength = lengthOfElement(stepAt(elements_, index), kMeasuringError);
    }
    return totalBefore(elements_, index);
}

BezierPath BezierPath::bezierPathByTrimmingToLength(float length, float withMaximumError) const {
    if (length >= elements_.length()) return *this;
    const std::optional<PathCut> cut = cutAtLength(elements_, length, withMaximumError);
    BezierPath trimmed;
    if (!cut) {
        trimmed.elements_ = elements_;
        return trimmed;
    }
    trimmed.elements_.assignStart(elements_, cut->index);
    trimmed.elements_.append(cut->piece.type, cut->piece.points.data());
    return trimmed;
}

Point BezierPath::pointOnPathAtLength(float length, float* slope) const {
    if (elementCount() < 2) return {};
    std::optional<PathCut> cut;
    if (length > 0 && !(length >= elements_.length())) {
        cut = cutAtLength(elements_, length, kMeasuringError);
    }
    const PathEnd end = length <= 0 ? startOf(elements_) : endAfter(elements_, cut);
    if (slope != nullptr) *slope = end.slope;
    return end.point;
}

}  // namespace QZCore
