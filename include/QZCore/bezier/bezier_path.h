// BezierPath: ordered elements (move-to, line-to, curve-to, close-path) with a
// line width, a dash pattern and a winding rule.
//
// A path is a value. Copies share long contents until one is changed, and what
// was measured of a path is kept until it changes, so asking again is cheap. An
// element before any move-to begins at (0, 0). Lengths and angles are floats,
// angles in radians from +x towards +y. Different threads may read the same path
// at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "QZCore/bezier/affine_transform.h"
#include "QZCore/bezier/path_elements.h"
#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

/// Which places count as inside of a path.
enum class WindingRule : std::uint8_t {
    NonZero,  // those that the path goes around more often one way than the other
    EvenOdd,  // those that a ray leaves by an odd number of crossings
};

/// An edge of a rectangle. The top edge is the one at the smaller y.
enum class RectEdge : std::uint8_t { Left = 0, Top = 1, Right = 2, Bottom = 3 };

/// A path of lines and cubic curves. Empty unless made otherwise.
class QZ_EXPORT BezierPath final {
public:
    // ---- Making ----

    /// A path without elements.
    BezierPath() = default;

    /// A line from one point to another.
    [[nodiscard]] static BezierPath bezierPathWithLineFromPoint(Point point, Point toPoint);

    /// Lines through all points in order, not closed; empty without points.
    [[nodiscard]] static BezierPath bezierPathWithPointsArray(const std::vector<Point>& points);

    /// A rectangle, closed, from its origin along its top edge.
    [[nodiscard]] static BezierPath bezierPathWithRect(Rect rect);

    /// A rectangle with rounded corners, closed, from the left edge over the top left
    /// corner along the top edge. The radius is at most half the width and half the
    /// height; a radius of exactly 0 gives `bezierPathWithRect`.
    [[nodiscard]] static BezierPath bezierPathWithRoundRectInRect(Rect rect, double radius);

    /// The convex hull of points, closed. Sorts the points as `convexHull` does; of no
    /// points it is a close-path alone.
    [[nodiscard]] static BezierPath bezierPathAsConvexHullContainingPoints(Point* points,
                                                                           std::int32_t count);

    /// The convex hull of the corners of two rectangles, closed.
    [[nodiscard]] static BezierPath bezierPathAsConvexHullContainingRect(Rect rect1, Rect rect2);

    // ---- Connectors ----
    //
    // Lines from one figure to another that leave and enter along nubs: stubs that
    // are horizontal or vertical, and reach half-way if they are shorter than that
    // (`nubThreshhold`). When both nubs share an axis and the connector runs
    // backwards along it, it is built from the other end, the lengths exchanged.

    /// A rope: one S-shaped curve, whose control points are the ends of the nubs, or
    /// the ends of the rope where a nub has length 0.
    [[nodiscard]] static BezierPath bezierPathRopeFromPoint(Point point, Point to,
                                                            bool isStartNubHorizontal,
                                                            bool isEndNubHorizontal,
                                                            double startNubLength,
                                                            double endNubLength);

    /// Three straight legs over the ends of the nubs. A start nub of length 0 ends at
    /// (start x, end y), an end nub of length 0 begins at (end x, start y): with
    /// neither, the legs cross.
    [[nodiscard]] static BezierPath bezierPathBentLinesFromPoint(Point point, Point to,
                                                                 bool isStartNubHorizontal,
                                                                 bool isEndNubHorizontal,
                                                                 double startNubLength,
                                                                 double endNubLength);

    /// The bent lines with their two inner corners rounded, as by
    /// `bezierPathWithOrthogonalLinesToCurvedCornersOfRadius`.
    [[nodiscard]] static BezierPath bezierPathRoundedBentLinesFromPoint(
        Point point, Point to, bool isStartNubHorizontal, bool isEndNubHorizontal,
        double startNubLength, double endNubLength, double radius);

    // ---- Outlines ----

    /// A triangle, closed: its apex in the middle of the edge, the opposite edge as its
    /// base. Clockwise from the apex, as seen with y pointing down.
    [[nodiscard]] static BezierPath bezierPathWithTriangleInRect(Rect rect, RectEdge edge);

    /// A pill with a jagged outline, closed: a rectangle whose shorter sides are half
    /// circles. Its teeth are `spacing` wide on straight sides, about that on round
    /// ones, and half as deep; their tips reach the rectangle. The pill is centred in
    /// it, and shorter by what would not hold a whole tooth. A side has no teeth when
    /// not one fits, when more than 65,536 would, or when the spacing is not above 0.
    [[nodiscard]] static BezierPath bezierPathWithJaggedPillInRect(Rect rect, double spacing);

    /// An oval with a jagged outline, closed, with teeth as those of a jagged pill.
    [[nodiscard]] static BezierPath bezierPathWithJaggedOvalInRect(Rect rect, double spacing);

    // ---- Building ----

    /// Starts a subpath.
    void moveToPoint(Point point);
    /// Appends a line.
    void lineToPoint(Point point);
    /// Appends a cubic curve.
    void curveToPoint(Point point, Point controlPoint1, Point controlPoint2);
    /// Appends a line to the start of the subpath.
    void closePath();
    /// Appends a line to each point; a move-to to the first one when the path is empty.
    void appendBezierPathWithPoints(const Point* points, std::size_t count);
    /// Appends all elements of another path.
    void appendBezierPath(const BezierPath& path);
    /// Leaves a path without elements; line width, dash and winding rule stay.
    void removeAllPoints();

    // ---- Elements ----

    /// Whether there are no elements.
    [[nodiscard]] bool isEmpty() const { return elements_.count() == 0; }
    /// The number of elements.
    [[nodiscard]] std::size_t elementCount() const { return elements_.count(); }
    /// The type of an element. Its points, up to three, are written to
    /// `associatedPoints` when that is given. An index without an element gives
    /// a close-path and writes nothing.
    PathElementType elementAtIndex(std::size_t index, Point* associatedPoints = nullptr) const;
    /// Replaces the points of an element, of which there must be as many as it has.
    /// An index without an element changes nothing.
    void setAssociatedPoints(const Point* points, std::size_t atIndex);
    /// Where the last element ends, (0, 0) without elements.
    [[nodiscard]] Point currentPoint() const;
    /// The elements as they are stored.
    [[nodiscard]] const detail::PathElements& elements() const { return elements_; }

    // ---- Drawing attributes ----

    /// The width of the stroke; 1 unless set.
    [[nodiscard]] double lineWidth() const { return lineWidth_; }
    /// Sets the width of the stroke.
    void setLineWidth(double lineWidth) { lineWidth_ = lineWidth; }
    /// What is inside; non-zero unless set.
    [[nodiscard]] WindingRule windingRule() const { return windingRule_; }
    /// Sets what is inside.
    void setWindingRule(WindingRule windingRule) { windingRule_ = windingRule; }
    /// The lengths of dashes and gaps, in turn; none for a line without gaps.
    [[nodiscard]] const std::vector<double>& lineDash() const { return lineDash_; }
    /// How far into the pattern the stroke begins.
    [[nodiscard]] double lineDashPhase() const { return lineDashPhase_; }
    /// Sets pattern and phase.
    void setLineDash(std::vector<double> pattern, double phase);
    /// Reads "4,2" or "4,2;1": up to 30 lengths and a phase, in units of the line
    /// width. A piece that is no number counts as 0, an empty one between two commas
    /// repeats the number before. Nothing, or exactly "0", changes nothing.
    void setLineDashFromString(StringView string);

    // ---- Comparison ----

    /// Whether both have the same elements with exactly the same points. How they are
    /// drawn is not compared. A path always equals itself.
    [[nodiscard]] bool isEqual(const BezierPath& other) const;
    /// The same as `isEqual`.
    friend bool operator==(const BezierPath& a, const BezierPath& b) { return a.isEqual(b); }
    /// Whether both share the same long contents, or are the same object.
    [[nodiscard]] bool isIdentical(const BezierPath& other) const;
    /// The same for equal paths. Of each point only the leading digit of its magnitude
    /// counts, so that paths which are nearly equal mostly agree as well.
    [[nodiscard]] std::uint32_t hash() const;

    // ---- Transforms ----

    /// The smallest rectangle around the ends of all elements and the curves between
    /// them; the zero rectangle without elements. Coordinates that are no numbers
    /// do not count.
    [[nodiscard]] Rect bounds() const { return elements_.bounds(); }
    /// Applies the transform to every point.
    void transformUsingAffineTransform(const AffineTransform& transform);
    /// Rotates about the centre of the bounds, unless the angle is exactly 0.
    void rotateByRadians(float angle);
    /// Rotates about a point, unless the angle is exactly 0.
    void rotateByRadians(float angle, Point aroundCenterPoint);
    /// Rotates about the centre of the bounds, unless the angle is exactly 0.
    void rotateByDegrees(float angle);
    /// Rotates about a point, unless the angle is exactly 0.
    void rotateByDegrees(float angle, Point aroundCenterPoint);
    /// Moves every point.
    void translateXBy(double dx, double yBy);
    /// Scales every point about (0, 0), not about the path's centre.
    void scaleBy(double factor);
    /// Moves level and upright runs to half units, where strokes of one unit cover
    /// whole pixels. Slanted runs stay.
    void makeSureAllControlPointsAreNonIntegral();

    /// A copy whose corners, where one straight line meets another, are arcs of the
    /// radius. An arc takes at most half of a line that ends in corners on both
    /// sides and all of one that has a free end; its radius shrinks to that. Curves
    /// stay, and so do corners at curves and lines that turn straight back; lines of
    /// length 0 go. A radius that is not above 0 gives an equal path.
    [[nodiscard]] BezierPath bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(
        double radius) const;

    // ---- Measurement ----

    /// The length of all elements, a float. Curves are measured to within about 0.1.
    [[nodiscard]] double length() const;
    /// The length of the elements before `index`, 0 when there is no such element. The
    /// length of that element goes to `segmentLength`, when given; 0 if there is none.
    [[nodiscard]] float lengthToSegment(std::size_t index, float* segmentLength = nullptr) const;
    /// A path that follows this one for a length; this very path when it is not longer
    /// than that. Curves are measured, and the last one is cut, to within
    /// `withMaximumError`. A negative length extends the first line backwards; one
    /// that is no number trims nothing.
    [[nodiscard]] BezierPath bezierPathByTrimmingToLength(float length,
                                                          float withMaximumError = 0.1F) const;
    /// What lies between two lengths: `bezierPathByTrimmingToLength(toLength)` without
    /// its first `length` units. The subpath that is cut begins with a move-to there
    /// and is open: a line stands for its close-path. A length that is not above 0
    /// cuts nothing off; nothing is left when it is not below the other.
    [[nodiscard]] BezierPath bezierPathFromLength(float length, float toLength) const;
    /// The point that is reached after a length; the direction there goes to `slope`,
    /// when given. A path of fewer than two elements gives (0, 0) and no slope; one
    /// that is cut within its first element gives (0, 0) and the slope 1.
    [[nodiscard]] Point pointOnPathAtLength(float length, float* slope = nullptr) const;

    // ---- Hits ----
    //
    // A stroke is hit within half the line width and a padding. A path that does not
    // begin with a move-to is never hit. A close-path returns to the first move-to, or
    // to the last one that follows a close-path.
    //
    // A padding of exactly -1 asks for the nearest element instead. Lines then count as
    // endless, and curves farther than 316 units as touched.

    /// Whether the point is on the stroke. With a padding of -1 always true.
    [[nodiscard]] bool strokeContainsPoint(Point point, float withPadding) const;
    /// The index of the first element whose stroke the point is on, 0 for none; the
    /// nearest element with a feather of -1, and -1 for none. Where along the element
    /// the closest place is, from 0 to 1, goes to `positionInSegment`, when given. A
    /// point that equals the first point of an element hits that one, at 0.
    std::ptrdiff_t segmentNearPoint(Point point, float feather,
                                    float* positionInSegment = nullptr) const;
    /// The position of that place as a share of the length; 0 for none.
    [[nodiscard]] double positionOfNearbyPoint(Point point, float feather) const;
    /// The point at a share of the length, as `pointOnPathAtLength` has it.
    [[nodiscard]] Point pointOnPathAtPosition(double fraction) const;
    /// The point at `positionOfNearbyPoint`.
    [[nodiscard]] Point pointOnPathNearbyPoint(Point point, float feather) const;

    // ---- Crossings ----
    //
    // Positions of crossings are floats along the element that is crossed, from 0 to
    // 1, and up to 0.0001 beyond, so that crossings at ends are found. Parallel lines
    // do not cross. Of two curves the other one counts as straight where it is flat
    // within half the line width and 1; a level or upright curve is not crossed by
    // another, and curves that lie on each other cross in many places.

    /// Appends the positions of the crossings with a line, in the order of the elements.
    void addIntersectionsWithLineStart(Point lineStart, Point lineEnd,
                                       std::vector<float>& toArray) const;
    /// Appends the positions of the crossings with a cubic curve of four points, in the
    /// order of the elements.
    void addIntersectionsWithCurveTo(const Point* curve, std::vector<float>& toArray) const;
    /// Whether the path crosses a line. The first crossing goes to `point`, when given.
    bool intersectionWithLine(Point* point, Point lineStart, Point lineEnd) const;
    /// The positions of the crossings with another path, in the order of its elements
    /// and then of this path's. None when this path has an area and the bounds do not
    /// overlap; those of a level or upright line never do, so ask that one instead.
    [[nodiscard]] std::vector<float> intersectionsWithPath(const BezierPath& path) const;
    /// Whether there are any.
    [[nodiscard]] bool intersectionWithPath(const BezierPath& path) const;

    // ---- Places ----

    /// The distance from this path to another: 0 when they cross, else the shortest from
    /// the ends of this path's elements, and points along its curves, to the other's
    /// lines and curves. What closes a subpath does not count. The way there goes to
    /// `resultingOffset`, when given. 3.4028234663852886e+38 and `QZHugePoint` when there
    /// is nothing to measure, or a path does not begin with a move-to.
    double distanceFromPath(const BezierPath& path, Point* resultingOffset = nullptr) const;
    /// Whether the point is inside, by the winding rule. Subpaths count as closed. Of
    /// the outline the left and top edges are inside, the right and bottom ones not.
    [[nodiscard]] bool containsPoint(Point point) const;
    /// Whether the bounds contain the other path's bounds, or else all ends of the other
    /// path's elements after the first are inside. Nothing contains an empty path.
    [[nodiscard]] bool containsPath(const BezierPath& path) const;
    /// The path with its curves as lines that are at most 0.1 away from them, or a
    /// millionth of their size where that is more.
    [[nodiscard]] BezierPath bezierPathByFlatteningPath() const;

    // ---- Smoothing ----

    /// A smooth curve through the ends of all elements, in order: twice differentiable
    /// within each subpath, and around a closed one.
    [[nodiscard]] static BezierPath bezierPathCurveFittingThroughPointsOnPath(
        const BezierPath& path);
    /// The lines of the path with rounded corners, from the middle of the closing line
    /// on. Each corner is rounded from at most 20 units away; the radius is not used, and
    /// the last corner before a close-path keeps sharp. Curves are left out. Nothing for
    /// a path that does not begin with a move-to, or is one move-to.
    [[nodiscard]] std::optional<BezierPath> smoothedPathWithCornerRadius(double radius) const;
    /// The path scaled about the centre of its bounds, so that these become smaller by
    /// `inset` on every side; larger by a negative one. This very path when the inset is
    /// exactly 0 or the bounds are a point.
    [[nodiscard]] BezierPath insetPathBy(double inset) const;

private:
    detail::PathElements elements_;
    std::vector<double> lineDash_;
    double lineDashPhase_ = 0;
    double lineWidth_ = 1;
    WindingRule windingRule_ = WindingRule::NonZero;
};

}  // namespace QZCore
