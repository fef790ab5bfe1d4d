// Points, sizes and rectangles in the plane.
//
// The y axis points down: the top edge of a rectangle is the one at the smaller
// y, and its origin is its top left corner. Coordinates are doubles; nothing
// forbids a negative width or height.
#pragma once

namespace QZCore {

/// A place in the plane.
struct Point {
    /// The distance from the left.
    double x = 0;
    /// The distance from the top.
    double y = 0;

    /// Exact comparison of both coordinates; no tolerance.
    friend constexpr bool operator==(const Point&, const Point&) = default;
};

/// An extent in the plane.
struct Size {
    /// The extent along x.
    double width = 0;
    /// The extent along y.
    double height = 0;

    /// Exact comparison of both extents; no tolerance.
    friend constexpr bool operator==(const Size&, const Size&) = default;
};

/// A rectangle with edges along the axes.
struct Rect {
    /// The corner at the smaller x and the smaller y.
    Point origin;
    /// The extent from there.
    Size size;

    /// Exact comparison of origin and size; no tolerance.
    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace QZCore
