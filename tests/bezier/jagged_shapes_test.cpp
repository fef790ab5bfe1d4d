#include "bezier/jagged_shapes.h"

#include <cmath>

#include "QZCore/geometry.h"
#include "bezier/jagged_line.h"
#include "support/path_data.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {

TEST_CASE("a jagged line has tips beside it and bases on it") {
    BezierPath path = testing::pathOf(u"M0 0");
    std::vector<Point> buffer(8);
    joc_jaggedLineToPoint(path, {40, 0}, 4, 3, buffer);
    CHECK(path == testing::pathOf(u"M0 0 5 3 10 0 15 3 20 0 25 3 30 0 35 3 40 0"));

    struct Row {
        const char* why;
        StringView path;
        Point to;
        std::uint32_t teeth;
        std::size_t room;
        StringView jagged;
    };
    const Row rows[] = {
        {"an upright line leans to +x", u"M0 0", {0, 8}, 2, 4, u"M0 0 3 2 0 4 3 6 0 8"},
        {"back along x leans to -y", u"M0 0", {-8, 0}, 1, 2, u"M0 0 -4 -3 -8 0"},
        {"no length", u"M7 8", {7, 8}, 2, 4, u"M7 8 7 8 7 8 7 8 7 8"},
        {"no teeth", u"M7 8", {9, 9}, 0, 4, u"M7 8"},
        {"no path", u"", {9, 9}, 1, 2, u""},
        {"no room", u"M7 8", {9, 9}, 3, 5, u"M7 8"},
        {"more teeth than memory", u"M7 8", {9, 9}, 0xFFFFFFFF, 5, u"M7 8"},
        {"from a first control point",
         u"M7 8C0 0 1 1 2 2",
         {4, 0},
         1,
         2,
         u"M7 8C0 0 1 1 2 2L2 3 4 0"},
        {"from the start of a subpath", u"M0 0L5 5Z", {4, 0}, 1, 2, u"M0 0L5 5ZL2 3 4 0"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        BezierPath changed = testing::pathOf(row.path);
        std::vector<Point> room(row.room);
        joc_jaggedLineToPoint(changed, row.to, row.teeth, 3, room);
        CHECK(changed == testing::pathOf(row.jagged));
    }
}

TEST_CASE("jagged outlines fill their rectangle with teeth of one width") {
    testing::RandomPlane random(31);
    for (int i = 0; i < 300; ++i) {
        const Rect rect = random.rect(100, 300);
        const double spacing = random.number(2, 20);
        const double a = random.number(0, rect.size.width);
        const double b = random.number(0, rect.size.height);
        const BezierPath shapes[] = {
            joc_bezierPathWithJaggedRoundedRectInRect(rect, a, b, spacing),
            BezierPath::bezierPathWithJaggedPillInRect(rect, spacing),
            BezierPath::bezierPathWithJaggedOvalInRect(rect, spacing),
        };
        for (const BezierPath& shape : shapes) {
            const Rect bounds = shape.bounds();
            REQUIRE(shape.elementAtIndex(shape.elementCount() - 1) == PathElementType::ClosePath);
            REQUIRE(centerOfRect(bounds).x == doctest::Approx(centerOfRect(rect).x));
            REQUIRE(centerOfRect(bounds).y == doctest::Approx(centerOfRect(rect).y));
            REQUIRE(bounds.size.width <= rect.size.width + 1e-9);
            REQUIRE(bounds.size.height <= rect.size.height + 1e-9);
            REQUIRE(bounds.size.width > rect.size.width - 2 * spacing);
            REQUIRE(bounds.size.height > rect.size.height - 2 * spacing);
        }
    }
    // The tips of the teeth of a circle stand at even distances, and so do the bases.
    const BezierPath circle =
        BezierPath::bezierPathWithJaggedOvalInRect({{-100, -100}, {200, 200}}, 10);
    const std::vector<Point> points = testing::pointsOf(circle);
    REQUIRE(points.size() == 1 + 4 * 2 * 14);
    for (std::size_t i = 0; i < points.size(); ++i) {
        CHECK(std::hypot(points[i].x, points[i].y) == doctest::Approx(i % 2 == 0 ? 95 : 100));
    }
    for (std::size_t i = 0; i + 2 < points.size(); ++i) {
        CHECK(distanceBetweenPoints(points[i], points[i + 2]) ==
              doctest::Approx(i % 2 == 0 ? 10.657 : 11.218).epsilon(1e-3));
    }
    const Rect valid = joc_validRectWithRect({{0, 0}, {107, 49}}, 10, 5, 8);
    CHECK(valid == Rect{{3.5, 3.5}, {100, 42}});
}

TEST_CASE("outlines without teeth are smooth") {
    const Rect rect{{0, 0}, {40, 20}};
    for (const double spacing : {0.0, -1.0, 41.0, 1e-9, 1e300, double{NAN}, double{INFINITY}}) {
        CAPTURE(spacing);
        CHECK(BezierPath::bezierPathWithJaggedPillInRect(rect, spacing).bounds() == rect);
        CHECK(BezierPath::bezierPathWithJaggedPillInRect(rect, spacing).elementCount() < 10);
        CHECK(BezierPath::bezierPathWithJaggedOvalInRect(rect, spacing).elementCount() < 10);
    }
    CHECK(joc_bezierPathWithJaggedRoundedRectInRect(rect, 0, 5, 0) ==
          testing::pathOf(u"M0 0H40V20H0V0Z"));
}

}  // namespace QZCore
