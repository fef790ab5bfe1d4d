#include "QZCore/geometry/placement.h"

#include <algorithm>

#include "QZCore/geometry/sizes.h"
#include "foundation/single_precision.h"
#include "geometry/edges.h"

namespace QZCore {
namespace {

/// The gap that stacking leaves between two rectangles. Part of the layout of
/// stored boards: changing it moves every stacked figure.
constexpr double kStackGap = 1;

double freeWidth(Rect rect, Rect container) { return container.size.width - rect.size.width; }
double freeHeight(Rect rect, Rect container) { return container.size.height - rect.size.height; }

double centeredX(Rect rect, Rect container) {
    return container.origin.x + freeWidth(rect, container) / 2;
}

double centeredY(Rect rect, Rect container) {
    return container.origin.y + freeHeight(rect, container) / 2;
}

double yOver(Rect rect, Rect neighbor) { return neighbor.origin.y - rect.size.height - kStackGap; }

double yUnder(Rect neighbor) { return bottomOf(neighbor) + kStackGap; }

}  // namespace

Rect topRectInRect(Rect rect, Rect container) { return {container.origin, rect.size}; }

Rect bottomRectInRect(Rect rect, Rect container) {
    return {{container.origin.x, bottomOf(container) - rect.size.height}, rect.size};
}

Rect verticallyCenterRectInRect(Rect rect, Rect container) {
    return {{container.origin.x, centeredY(rect, container)}, rect.size};
}

Rect horizontallyCenterRectInRect(Rect rect, Rect container) {
    return {{centeredX(rect, container), container.origin.y}, rect.size};
}

Rect centerRectInRect(Rect rect, Rect container) {
    return {{centeredX(rect, container), centeredY(rect, container)}, rect.size};
}

Rect topThirdRectInRect(Rect rect, Rect container) {
    return {{centeredX(rect, container), container.origin.y + freeHeight(rect, container) / 3},
            rect.size};
}

Rect leftAlignRectToRect(Rect rect, Rect neighbor) {
    return {{neighbor.origin.x, rect.origin.y}, rect.size};
}

Rect stackRectOverRect(Rect rect, Rect neighbor) {
    return {{rect.origin.x, yOver(rect, neighbor)}, rect.size};
}

Rect stackRectUnderRect(Rect rect, Rect neighbor) {
    return {{rect.origin.x, yUnder(neighbor)}, rect.size};
}

Rect leftStackRectOverRect(Rect rect, Rect neighbor) {
    return {{neighbor.origin.x, yOver(rect, neighbor)}, rect.size};
}

Rect leftStackRectUnderRect(Rect rect, Rect neighbor) {
    return {{neighbor.origin.x, yUnder(neighbor)}, rect.size};
}

Rect scaleRect(Rect rect, double factor) {
    return {{rect.origin.x * factor, rect.origin.y * factor}, scaleSize(rect.size, factor)};
}

Rect scaleRectProportionallyInRect(Rect rect, Rect container) {
    const float factor = f32(
        std::min(container.size.width / rect.size.width, container.size.height / rect.size.height));
    return {rect.origin, scaleSize(rect.size, factor)};
}

}  // namespace QZCore
