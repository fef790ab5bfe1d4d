#include "bezier/jagged_shapes.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "QZCore/geometry/placement.h"
#include "QZCore/geometry/points.h"
#include "QZCore/geometry/rectangles.h"
#include "bezier/jagged_arc.h"
#include "bezier/jagged_line.h"

namespace QZCore {
namespace {

/// How many teeth of the width `spacing` stand side by side on a length. None when
/// they would be too many to be seen.
std::uint32_t teethOn(double length, double spacing) {
    constexpr double kMostTeeth = 65536;
    constexpr double kRoundingErrors = 1e-9;
    const double teeth = length / spacing * (1 + kRoundingErrors);
    return teeth >= 1 && teeth <= kMostTeeth ? static_cast<std::uint32_t>(teeth) : 0;
}

/// An extent, of which `corners` is taken by corners, less what holds no whole tooth.
double validExtent(double extent, double corners, double spacing) {
    const std::uint32_t teeth = teethOn(extent - corners, spacing);
    return teeth == 0 ? extent : std::min(extent, corners + teeth * spacing);
}

/// Draws an outline clockwise, as seen with y pointing down.
class JaggedOutline {
public:
    JaggedOutline(Point start, double spacing, double depth) : spacing_(spacing), depth_(depth) {
        path_.moveToPoint(start);
    }

    void cornerAlong(const QuarterArc& arc) {
        if (arc.startSpoke == Point() || arc.endSpoke == Point()) return;
        if (const std::uint32_t teeth = teethOn(lengthOf(arc), spacing_)) {
            appendTeethOnArc(path_, arc, teeth, depth_);
        } else {
            continueWithQuarterArc(path_, arc);
        }
    }

    void edgeTo(Point end) {
        const Point start = path_.currentPoint();
        if (start == end) return;
        const Point d = subtractPointByPoint(end, start);
        const std::uint32_t teeth = teethOn(std::hypot(d.x, d.y), spacing_);
        if (teeth == 0) return path_.lineToPoint(end);
        // Teeth with a width above 0 point inwards on level edges, outwards on upright ones.
        const double width = std::abs(d.x) > std::abs(d.y) ? depth_ : -depth_;
        points_.resize(std::size_t{teeth} * 2);
        writeTeeth(start, end, teeth, width, points_.data());
        points_.back() = end;  // which the rounded steps may miss
        path_.appendBezierPathWithPoints(points_.data(), points_.size());
    }

    [[nodiscard]] BezierPath closed() {
        path_.closePath();
        return path_;
    }

private:
    BezierPath path_;
    std::vector<Point> points_;
    double spacing_;
    double depth_;
};

}  // namespace

Rect validRectWithRect(Rect rect, double a, double b, double spacing) {
    const Rect valid{rect.origin,
                     {validExtent(rect.size.width, 2 * a, spacing),
                      validExtent(rect.size.height, 2 * b, spacing)}};
    return centerRectInRect(valid, rect);
}

BezierPath bezierPathWithJaggedRoundedRectInRect(Rect rect, double a, double b, double spacing) {
    a = std::min(a, rect.size.width / 2);
    b = std::min(b, rect.size.height / 2);
    if (!(a > 0 && b > 0)) a = b = 0;
    rect = validRectWithRect(rect, a, b, spacing);
    const Rect centers{{rect.origin.x + a, rect.origin.y + b},
                       {rect.size.width - 2 * a, rect.size.height - 2 * b}};
    const QuarterArc topLeft{topLeftOfRect(centers), {-a, 0}, {0, -b}};
    const QuarterArc topRight{topRightOfRect(centers), {0, -b}, {a, 0}};
    const QuarterArc bottomRight{bottomRightOfRect(centers), {a, 0}, {0, b}};
    const QuarterArc bottomLeft{bottomLeftOfRect(centers), {0, b}, {-a, 0}};
    // Half a tooth's width gives teeth with right angles; less where the shape is too thin.
    const double depth = std::min({spacing / 2, rect.size.width / 4, rect.size.height / 4});

    JaggedOutline outline(topLeft.start(), spacing, depth);
    outline.cornerAlong(topLeft);
    outline.edgeTo(topRight.start());
    outline.cornerAlong(topRight);
    outline.edgeTo(bottomRight.start());
    outline.cornerAlong(bottomRight);
    outline.edgeTo(bottomLeft.start());
    outline.cornerAlong(bottomLeft);
    outline.edgeTo(topLeft.start());
    return outline.closed();
}

BezierPath BezierPath::bezierPathWithJaggedPillInRect(Rect rect, double spacing) {
    const double radius = std::min(rect.size.width, rect.size.height) / 2;
    return bezierPathWithJaggedRoundedRectInRect(rect, radius, radius, spacing);
}

BezierPath BezierPath::bezierPathWithJaggedOvalInRect(Rect rect, double spacing) {
    return bezierPathWithJaggedRoundedRectInRect(rect, rect.size.width / 2, rect.size.height / 2,
                                                 spacing);
}

}  // namespace QZCore
