#include "QZCore/geometry/rectangles.h"
#include "geometry/edges.h"

namespace QZCore {

Point topLeftOfRect(Rect rect) { return rect.origin; }

Point topCenterOfRect(Rect rect) { return {middleAcross(rect), rect.origin.y}; }

Point topRightOfRect(Rect rect) { return {rightOf(rect), rect.origin.y}; }

Point rightCenterOfRect(Rect rect) { return {rightOf(rect), middleDown(rect)}; }

Point bottomRightOfRect(Rect rect) { return {rightOf(rect), bottomOf(rect)}; }

Point pointOnRectOppositeOrigin(Rect rect) { return bottomRightOfRect(rect); }

Point bottomCenterOfRect(Rect rect) { return {middleAcross(rect), bottomOf(rect)}; }

Point bottomLeftOfRect(Rect rect) { return {rect.origin.x, bottomOf(rect)}; }

Point leftCenterOfRect(Rect rect) { return {rect.origin.x, middleDown(rect)}; }

Point centerOfRect(Rect rect) { return {middleAcross(rect), middleDown(rect)}; }

void convertRectToEndPoints(Rect rect, Point* out) {
    if (out == nullptr) return;
    out[0] = topLeftOfRect(rect);
    out[1] = bottomLeftOfRect(rect);
    out[2] = bottomRightOfRect(rect);
    out[3] = topRightOfRect(rect);
}

}  // namespace QZCore
