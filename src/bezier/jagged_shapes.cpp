#include "bezier/jagged_shapes.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "QZCore/geometry/placement.h"
#include "QZCore/geometry/points.h"
#include "QZCore/geometry/rectangles.h"
#include "bezier/jagged_arc.h"
#include "bezier/jagged_line.h"
#include "geometry/containment.h"

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

/// What the teeth of an outline are like, and on what they stand.
struct Teeth {
    double spacing;
    double depth;
};

/// Draws a rounded rectangle clockwise, as seen with y pointing down.
class JaggedOutline {
public:
    explicit JaggedOutline(Teeth teeth) : teeth_(teeth) {}

    /// The corners have the half axes `a` and `b`, of which none is below 0.
    void draw(Rect rect, double a, double b) {
        const Rect centers{{rect.origin.x + a, rect.origin.y + b},
                           {rect.size.width - 2 * a, rect.size.height - 2 * b}};
        const QuarterArc corners[] = {
            {topLeftOfRect(centers), {-a, 0}, {0, -b}},
            {topRightOfRect(centers), {0, -b}, {a, 0}},
            {bottomRightOfRect(centers), {a, 0}, {0, b}},
            {bottomLeftOfRect(centers), {0, b}, {-a, 0}},
        };
        path_.moveToPoint(corners[0].start());
        for (std::size_t i = 0; i < 4; ++i) {
            cornerAlong(corners[i]);
            edgeTo(corners[(i + 1) % 4].start());
        }
        path_.closePath();
    }

    [[nodiscard]] bool hasTeeth() const { return hasTeeth_; }
    [[nodiscard]] const BezierPath& path() const { return path_; }

private:
    void cornerAlong(const QuarterArc& arc) {
        if (arc.start() == arc.end()) return;
        if (const std::uint32_t count = teethOn(lengthOf(arc), teeth_.spacing)) {
            appendTeethOnArc(path_, arc, count, teeth_.depth);
            hasTeeth_ = true;
        } else {
            continueWithQuarterArc(path_, arc);
        }
    }

    void edgeTo(Point end) {
        const Point start = path_.currentPoint();
        if (start == end) return;
        const Point d = subtractPointByPoint(end, start);
        const std::uint32_t count = teethOn(std::hypot(d.x, d.y), teeth_.spacing);
        if (count == 0) return path_.lineToPoint(end);
        // Teeth with a width above 0 point outwards on upright edges, inwards on level ones.
        const double width = std::abs(d.x) > std::abs(d.y) ? -teeth_.depth : teeth_.depth;
        points_.resize(std::size_t{count} * 2);
        writeTeeth(start, end, count, width, points_.data());
        points_.back() = end;  // which the rounded steps may miss
        path_.appendBezierPathWithPoints(points_.data(), points_.size());
        hasTeeth_ = true;
    }

    Teeth teeth_;
    BezierPath path_;
    std::vector<Point> points_;
    bool hasTeeth_ = false;
};

/// The half axis of a corner between two edges of that extent.
double halfAxis(double wanted, double extent) {
    const double most = std::min(wanted, extent / 2);
    return most > 0 ? most : 0;
}

/// A rounded rectangle with teeth on an outline that is their depth inside of `rect`.
JaggedOutline jaggedOutline(Rect rect, double a, double b, Teeth teeth) {
    rect = outset(rect, -teeth.depth);
    a = halfAxis(a - teeth.depth, rect.size.width);
    b = halfAxis(b - teeth.depth, rect.size.height);
    if (a == 0 || b == 0) a = b = 0;
    JaggedOutline outline(teeth);
    outline.draw(validRectWithRect(rect, a, b, teeth.spacing), a, b);
    return outline;
}

}  // namespace

Rect validRectWithRect(Rect rect, double a, double b, double spacing) {
    const Rect valid{rect.origin,
                     {validExtent(rect.size.width, 2 * a, spacing),
                      validExtent(rect.size.height, 2 * b, spacing)}};
    return centerRectInRect(valid, rect);
}

BezierPath bezierPathWithJaggedRoundedRectInRect(Rect rect, double a, double b, double spacing) {
    // Half a tooth's width makes right angles; teeth are flatter where the shape is thin.
    const double depth = std::min({spacing / 2, rect.size.width / 4, rect.size.height / 4});
    const JaggedOutline jagged = jaggedOutline(rect, a, b, {spacing, depth});
    if (jagged.hasTeeth()) return jagged.path();
    return jaggedOutline(rect, a, b, {.spacing = 0, .depth = 0}).path();
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
