#include "bezier/segment_search.h"

#include <cmath>

#include "bezier/element_ends.h"
#include "bezier/nearest_segment.h"
#include "bezier/path_boxes.h"
#include "bezier/stroke_hits.h"

namespace QZCore {
namespace {

/// How far from an element a hit may be; infinite where a curve can be hit without
/// being measured at all.
double reachOf(const HitRadius& radius) {
    if (!(radius.squaredOfCurves < kFarthestSquaredDistance)) return INFINITY;
    constexpr double kRounding = 1e-6;
    const double lines = radius.ofLines;
    return std::sqrt(std::fmax(radius.squaredOfCurves, lines * lines)) * (1 + kRounding);
}

/// Visits the elements after the first that the point may hit, until `visit` returns
/// true for one.
template <class Visit>
bool visitCandidates(const BezierPath& path, Point point, const HitRadius& radius, Visit visit) {
    const double reach = reachOf(radius);
    return visitUntil<SubpathRule::MoveAfterClose>(
        path.elements(),
        [&](const Box& box) { return reach == INFINITY || isWithin(box, point, reach); },
        [&](std::size_t index, const PathStep& step) { return index > 0 && visit(index, step); });
}

SegmentHit firstHit(const BezierPath& path, Point point, const HitRadius& radius) {
    SegmentHit hit;
    const bool isHit =
        visitCandidates(path, point, radius, [&](std::size_t index, const PathStep& step) {
            hit = {static_cast<std::ptrdiff_t>(index), 0, 0};
            return beginsWith(step, point) ||
                   isStepHit(step, point, &hit.position, radius, &hit.distanceSquared);
        });
    return isHit ? hit : SegmentHit();
}

}  // namespace

std::ptrdiff_t segmentHitByPoint(const BezierPath& path, Point point, float* position,
                                 float padding, float* distance) {
    SegmentHit hit;
    if (beginsWithMove(path.elements())) {
        const HitRadius radius(path.lineWidth(), padding);
        hit = radius.isNearestMode ? nearestSegment(path.elements(), point, radius)
                                   : firstHit(path, point, radius);
    }
    if (position != nullptr) *position = hit.position;
    if (distance != nullptr) *distance = hit.distanceSquared;
    return hit.index;
}

bool BezierPath::strokeContainsPoint(Point point, float withPadding) const {
    if (!beginsWithMove(elements_)) return false;
    const HitRadius radius(lineWidth_, withPadding);
    if (radius.isNearestMode) return true;  // there, no element is -1, not 0
    return visitCandidates(*this, point, radius, [&](std::size_t, const PathStep& step) {
        return beginsWith(step, point) || isStepHit(step, point, nullptr, radius, nullptr);
    });
}

std::ptrdiff_t BezierPath::segmentNearPoint(Point point, float feather,
                                            float* positionInSegment) const {
    return segmentHitByPoint(*this, point, positionInSegment, feather, nullptr);
}

double BezierPath::positionOfNearbyPoint(Point point, float feather) const {
    float position = 0;
    const std::ptrdiff_t index = segmentNearPoint(point, feather, &position);
    float segmentLength = 0;
    const double before = lengthToSegment(static_cast<std::size_t>(index), &segmentLength);
    const double whole = length();
    return whole > 0 ? (before + static_cast<double>(position) * segmentLength) / whole : 0;
}

Point BezierPath::pointOnPathAtPosition(double fraction) const {
    return pointOnPathAtLength(static_cast<float>(fraction * length()));
}

Point BezierPath::pointOnPathNearbyPoint(Point point, float feather) const {
    return pointOnPathAtPosition(positionOfNearbyPoint(point, feather));
}

}  // namespace QZCore
