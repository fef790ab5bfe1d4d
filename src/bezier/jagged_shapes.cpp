#include "bezier/jagged_shapes.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "QZCore/geometry/placement.h"
#include "QZCore/geometry/points.h"
#include "QZCore/geometry/rectangles.h"
#include "bezier/arcs.h"
#include "bezier/jagged_line.h"
#include "bezier/quarter_ellipse.h"
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

/// What the teeth of an outline are like.
struct Teeth {
    double spacing;
    double depth;
};

/// A rounded corner: a quarter of an ellipse, to one side of its centre each way.
struct Corner {
    Point center;
    double sideX;
    double sideY;

    /// Where a point goes that is meant for the corner at +x and +y about (0, 0).
    [[nodiscard]] Point placed(Point point) const {
        return {center.x + sideX * point.x, center.y + sideY * point.y};
    }
    /// Whether the way around, clockwise with y pointing down, comes from the side.
    [[nodiscard]] bool comesFromSide() const { return sideX == sideY; }
};

/// Draws a rounded rectangle clockwise, as seen with y pointing down.
class JaggedOutline {
public:
    /// The corners have the half axes `a` and `b`, both above 0, or both 0.
    JaggedOutline(Teeth teeth, double a, double b) : teeth_(teeth), a_(a), b_(b) {
        if (a == 0) return;
        const QuarterEllipse quarter(a, b);
        if (const std::uint32_t count = teethOn(quarter.length(), teeth.spacing)) {
            cornerTeeth_ = quarter.teeth(count, teeth.depth);
        }
    }

    void draw(Rect rect) {
        const Rect centers{{rect.origin.x + a_, rect.origin.y + b_},
                           {rect.size.width - 2 * a_, rect.size.height - 2 * b_}};
        const Corner corners[] = {
            {topLeftOfRect(centers), -1, -1},
            {topRightOfRect(centers), 1, -1},
            {bottomRightOfRect(centers), 1, 1},
            {bottomLeftOfRect(centers), -1, 1},
        };
        path_.moveToPoint(startOf(corners[0]));
        for (std::size_t i = 0; i < 4; ++i) {
            goAround(corners[i]);
            edgeTo(startOf(corners[(i + 1) % 4]));
        }
        path_.closePath();
    }

    [[nodiscard]] bool hasTeeth() const { return !cornerTeeth_.empty() || !edgeTeeth_.empty(); }
    [[nodiscard]] const BezierPath& path() const { return path_; }

private:
    [[nodiscard]] Point startOf(const Corner& corner) const {
        return corner.placed(corner.comesFromSide() ? Point{a_, 0} : Point{0, b_});
    }

    void goAround(const Corner& corner) {
        if (a_ == 0) return;
        const std::size_t count = cornerTeeth_.size();
        for (std::size_t i = 1; i < count; ++i) {
            const std::size_t place = corner.comesFromSide() ? i : count - 1 - i;
            path_.lineToPoint(corner.placed(cornerTeeth_[place]));
        }
        if (count == 0) appendSmooth(corner);
    }

    void appendSmooth(const Corner& corner) {
        const Point side{corner.sideX * a_, 0};
        const Point height{0, corner.sideY * b_};
        continueWithQuarterArc(path_, corner.comesFromSide()
                                          ? QuarterArc{corner.center, side, height}
                                          : QuarterArc{corner.center, height, side});
    }

    void edgeTo(Point end) {
        const Point start = path_.currentPoint();
        if (start == end) return;
        const Point d = subtractPointByPoint(end, start);
        const std::uint32_t count = teethOn(std::hypot(d.x, d.y), teeth_.spacing);
        if (count == 0) return path_.lineToPoint(end);
        // Teeth with a width above 0 point outwards on upright edges, inwards on level ones.
        const double width = std::abs(d.x) > std::abs(d.y) ? -teeth_.depth : teeth_.depth;
        edgeTeeth_.resize(std::size_t{count} * 2);
        writeTeeth(start, end, count, width, edgeTeeth_.data());
        edgeTeeth_.back() = end;  // which the rounded steps may miss
        path_.appendBezierPathWithPoints(edgeTeeth_.data(), edgeTeeth_.size());
    }

    Teeth teeth_;
    double a_;
    double b_;
    std::vector<Point> cornerTeeth_;
    std::vector<Point> edgeTeeth_;
    BezierPath path_;
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
    JaggedOutline outline(teeth, a, b);
    outline.draw(joc_validRectWithRect(rect, a, b, teeth.spacing));
    return outline;
}

}  // namespace

Rect joc_validRectWithRect(Rect rect, double a, double b, double spacing) {
    const Rect valid{rect.origin,
                     {validExtent(rect.size.width, 2 * a, spacing),
                      validExtent(rect.size.height, 2 * b, spacing)}};
    return centerRectInRect(valid, rect);
}

BezierPath joc_bezierPathWithJaggedRoundedRectInRect(Rect rect, double a, double b,
                                                     double spacing) {
    // Half a tooth's width makes right angles; teeth are flatter where the shape is thin.
    const double depth = std::min({spacing / 2, rect.size.width / 4, rect.size.height / 4});
    const JaggedOutline jagged = jaggedOutline(rect, a, b, {spacing, depth});
    if (jagged.hasTeeth()) return jagged.path();
    return jaggedOutline(rect, a, b, {.spacing = 0, .depth = 0}).path();
}

BezierPath BezierPath::bezierPathWithJaggedPillInRect(Rect rect, double spacing) {
    const double radius = std::min(rect.size.width, rect.size.height) / 2;
    return joc_bezierPathWithJaggedRoundedRectInRect(rect, radius, radius, spacing);
}

BezierPath BezierPath::bezierPathWithJaggedOvalInRect(Rect rect, double spacing) {
    return joc_bezierPathWithJaggedRoundedRectInRect(rect, rect.size.width / 2,
                                                     rect.size.height / 2, spacing);
}

}  // namespace QZCore
