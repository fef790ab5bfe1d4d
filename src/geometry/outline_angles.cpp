#include <cmath>

#include "QZCore/geometry/angles.h"
#include "QZCore/geometry/rectangles.h"
#include "foundation/single_precision.h"

namespace QZCore {
namespace {

/// Below this the direction counts as running along the other axis.
constexpr float kNoComponent = 0.0001F;

/// How far along an edge of that extent the outline is met, where the direction
/// has the component `along` the edge and `across` it.
double offsetOnEdge(double extent, float along, float across) {
    const double steepness = std::abs(across);
    if (steepness <= kNoComponent) return along >= 0 ? extent : 0;
    const float offset = f32(extent * ((along / steepness + 1) * 0.5));
    if (offset < 0) return 0;
    return offset > extent ? extent : offset;
}

}  // namespace

float angleOfPointOnRect(Rect rect, Point point) {
    const Point center = centerOfRect(rect);
    return f32(std::atan2(f32(point.y - center.y) * rect.size.width,
                          f32(point.x - center.x) * rect.size.height));
}

Point pointOnRectFromAngle(Rect rect, float angle) {
    const float sine = f32(std::sin(static_cast<double>(angle)));
    const float cosine = f32(std::cos(static_cast<double>(angle)));
    return {rect.origin.x + offsetOnEdge(rect.size.width, cosine, sine),
            rect.origin.y + offsetOnEdge(rect.size.height, sine, cosine)};
}

}  // namespace QZCore
