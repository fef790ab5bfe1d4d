#include <cmath>
#include <limits>

#include "QZCore/bezier.h"
#include "QZCore/geometry.h"
#include "bezier/jagged_line.h"
#include "bezier/jagged_shapes.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {
namespace {

BezierPath read(StringView data) { return readSvgPathData(data).path; }

std::vector<Point> pointsOf(const BezierPath& path) {
    const detail::PathElements& elements = path.elements();
    return {elements.points(), elements.points() + elements.pointCount()};
}

constexpr double kBadNumbers[] = {0, -1, 1e-300, 1e300, -1e300, 5e-324, INFINITY, -INFINITY, NAN};

}  // namespace

TEST_CASE("a nub reaches half-way, or its length") {
    CHECK(nubThreshhold(10, 4) == 10);
    CHECK(nubThreshhold(2, 4) == 4);
    CHECK(nubThreshhold(-3, 4) == 7);
    CHECK(nubThreshhold(0, 4) == 4);
    CHECK(nubThreshhold(0.1F, 0) == 0.1F);
}

TEST_CASE("connectors leave along their nubs") {
    struct Row {
        const char* why;
        Point p, q;
        bool isStartHorizontal, isEndHorizontal;
        double startLength, endLength;
        StringView rope, bent;
    };
    const Row rows[] = {
        {"half-way",
         {0, 0},
         {100, 50},
         true,
         true,
         10,
         10,
         u"M0,0 C50,0 50,50 100,50",
         u"M0,0 L50,0 L50,50 L100,50"},
        {"backwards",
         {100, 0},
         {0, 0},
         true,
         true,
         10,
         60,
         u"M0,0 C60,0 50,0 100,0",
         u"M0,0 L60,0 L50,0 L100,0"},
        {"upright, backwards",
         {0, 80},
         {10, 0},
         false,
         false,
         10,
         60,
         u"M10,0 C10,60 0,40 0,80",
         u"M10,0 L10,60 L0,40 L0,80"},
        {"mixed, backwards",
         {100, 0},
         {0, 50},
         true,
         false,
         10,
         10,
         u"M100,0 C160,0 0,25 0,50",
         u"M100,0 L160,0 L0,25 L0,50"},
        {"no start nub",
         {0, 0},
         {100, 50},
         true,
         true,
         0,
         10,
         u"M0,0 C0,0 50,50 100,50",
         u"M0,0 L0,50 L50,50 L100,50"},
        {"no end nub",
         {0, 0},
         {100, 50},
         true,
         true,
         10,
         0,
         u"M0,0 C50,0 100,50 100,50",
         u"M0,0 L50,0 L100,0 L100,50"},
        {"no nubs",
         {0, 0},
         {100, 50},
         true,
         true,
         0,
         0,
         u"M0,0 C0,0 100,50 100,50",
         u"M0,0 L0,50 L100,0 L100,50"},
        {"one above the other",
         {0, 0},
         {0, 50},
         true,
         true,
         7,
         9,
         u"M0,0 C7,0 -9,50 0,50",
         u"M0,0 L7,0 L-9,50 L0,50"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(BezierPath::bezierPathRopeFromPoint(row.p, row.q, row.isStartHorizontal,
                                                  row.isEndHorizontal, row.startLength,
                                                  row.endLength) == read(row.rope));
        CHECK(BezierPath::bezierPathBentLinesFromPoint(row.p, row.q, row.isStartHorizontal,
                                                       row.isEndHorizontal, row.startLength,
                                                       row.endLength) == read(row.bent));
    }
    // Distances and lengths are floats.
    CHECK(pointsOf(BezierPath::bezierPathRopeFromPoint({0, 0}, {0.2, 0}, true, true, 0.3, 1e-3)) ==
          std::vector<Point>{{0, 0}, {0.3F, 0}, {0.2 - 0.1F, 0}, {0.2, 0}});
}

TEST_CASE("corners are rounded as far as their lines allow") {
    const double k = 0.5522847498307936;  // the handles of a quarter circle
    struct Row {
        const char* why;
        StringView path;
        double radius;
        StringView rounded;
    };
    const Row rows[] = {
        {"no radius", u"M0 0H10V10", 0, u"M0 0H10V10"},
        {"a negative one", u"M0 0H10V10", -3, u"M0 0H10V10"},
        {"no number", u"M0 0H10V10", NAN, u"M0 0H10V10"},
        {"no corner", u"M0 0H10H20", 5, u"M0 0H10H20"},
        {"straight back", u"M0 0H10H5Z", 5, u"M0 0H10H5Z"},
        {"a point", u"M1 1Z M2 2", 5, u"M1 1Z M2 2"},
        {"nothing", u"", 5, u""},
        {"lines of no length", u"M0 0H0H10V0H10", 5, u"M0 0H10"},
        {"corners at curves", u"M0 0H9C9 4 4 9 0 9V0", 5, u"M0 0H9C9 4 4 9 0 9V0"},
        {"after a close-path", u"M0 0H9Z L5 5", 1, u"M0 0H9Z M0 0L5 5"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(read(row.path).bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(row.radius) ==
              read(row.rounded));
    }

    const auto hook = [&](double r) {
        BezierPath path;
        path.moveToPoint({0, 0});
        if (r < 10) path.lineToPoint({10 - r, 0});
        path.curveToPoint({10, r}, {10 - r + k * r, 0}, {10, r - k * r});
        if (r < 10) path.lineToPoint({10, 10});
        return path;
    };
    for (const double radius : {0.5, 4.0, 10.0, 1000.0}) {
        const BezierPath rounded =
            read(u"M0 0H10V10").bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(radius);
        const std::vector<Point> expected = pointsOf(hook(std::min(radius, 10.0)));
        const std::vector<Point> points = pointsOf(rounded);
        REQUIRE(points.size() == expected.size());
        for (std::size_t i = 0; i < points.size(); ++i) {
            CHECK(distanceBetweenPoints(points[i], expected[i]) < 1e-6F);
        }
    }
    // A rectangle, with and without a line back to its start, becomes the rounded one.
    const BezierPath expected = BezierPath::bezierPathWithRoundRectInRect({{0, 0}, {40, 20}}, 5);
    for (StringView data : {u"M0 0H40V20H0Z", u"M0 0H40V20H0V0Z"}) {
        const BezierPath rounded =
            read(data).bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(5);
        CHECK(rounded.bounds() == expected.bounds());
        CHECK(rounded.length() == doctest::Approx(expected.length()));
        CHECK(rounded.elementAtIndex(rounded.elementCount() - 1) == PathElementType::ClosePath);
    }
    const BezierPath bent =
        BezierPath::bezierPathRoundedBentLinesFromPoint({0, 0}, {100, 50}, true, true, 10, 10, 8);
    CHECK(bent.length() == doctest::Approx(150 - 4 * 8 + 8 * 3.14159).epsilon(1e-3));
}

TEST_CASE("arcs in corners of any angle have the radius and touch both lines") {
    testing::RandomPlane random(21);
    for (int i = 0; i < 500; ++i) {
        const double turn = random.number(-3, 3);
        const Point apex = random.point(100);
        BezierPath corner;
        corner.moveToPoint({apex.x - 1000, apex.y});
        corner.lineToPoint(apex);
        corner.lineToPoint({apex.x + 1000 * std::cos(turn), apex.y + 1000 * std::sin(turn)});
        const double radius = random.number(1, 50);
        const BezierPath rounded =
            corner.bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(radius);
        const double reach = radius * std::tan(std::abs(turn) / 2);
        if (reach > 1000 || reach < 1e-6) continue;
        const Point center{apex.x - reach, apex.y + std::copysign(radius, turn)};
        const float arc = static_cast<float>(radius * std::abs(turn));
        for (float share = 0; share <= 1; share += 0.125F) {
            const Point p =
                rounded.pointOnPathAtLength(static_cast<float>(1000 - reach) + share * arc);
            CAPTURE(turn);
            REQUIRE(distanceBetweenPoints(p, center) == doctest::Approx(radius).epsilon(0.01));
        }
    }
}

TEST_CASE("a jagged line has tips beside it and bases on it") {
    BezierPath path = read(u"M0 0");
    std::vector<Point> buffer(8);
    jaggedLineToPoint(path, {40, 0}, 4, 3, buffer);
    CHECK(path == read(u"M0 0 5 3 10 0 15 3 20 0 25 3 30 0 35 3 40 0"));

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
        BezierPath changed = read(row.path);
        std::vector<Point> room(row.room);
        jaggedLineToPoint(changed, row.to, row.teeth, 3, room);
        CHECK(changed == read(row.jagged));
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
            bezierPathWithJaggedRoundedRectInRect(rect, a, b, spacing),
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
    const std::vector<Point> points = pointsOf(circle);
    REQUIRE(points.size() == 1 + 4 * 2 * 14);
    for (std::size_t i = 0; i < points.size(); ++i) {
        CHECK(std::hypot(points[i].x, points[i].y) == doctest::Approx(i % 2 == 0 ? 95 : 100));
    }
    for (std::size_t i = 0; i + 2 < points.size(); ++i) {
        CHECK(distanceBetweenPoints(points[i], points[i + 2]) ==
              doctest::Approx(i % 2 == 0 ? 10.657 : 11.218).epsilon(1e-3));
    }
    const Rect valid = validRectWithRect({{0, 0}, {107, 49}}, 10, 5, 8);
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
    CHECK(bezierPathWithJaggedRoundedRectInRect(rect, 0, 5, 0) == read(u"M0 0H40V20H0V0Z"));
}

TEST_CASE("a triangle has its apex on the edge") {
    const Rect rect{{10, 20}, {40, 30}};
    CHECK(BezierPath::bezierPathWithTriangleInRect(rect, RectEdge::Left) ==
          read(u"M10 35 50 20 50 50Z"));
    CHECK(BezierPath::bezierPathWithTriangleInRect(rect, RectEdge::Top) ==
          read(u"M30 20 50 50 10 50Z"));
    CHECK(BezierPath::bezierPathWithTriangleInRect(rect, RectEdge::Right) ==
          read(u"M50 35 10 50 10 20Z"));
    CHECK(BezierPath::bezierPathWithTriangleInRect(rect, RectEdge::Bottom) ==
          read(u"M30 50 10 20 50 20Z"));
    CHECK(BezierPath::bezierPathWithTriangleInRect(rect, static_cast<RectEdge>(9)).isEmpty());
}

TEST_CASE("shapes of any numbers end, and take little memory") {
    for (const double x : kBadNumbers) {
        for (const double y : kBadNumbers) {
            const Rect rect{{x, y}, {y, x}};
            for (const BezierPath& path : {
                     BezierPath::bezierPathRopeFromPoint({x, y}, {y, x}, true, true, x, y),
                     BezierPath::bezierPathRoundedBentLinesFromPoint({x, y}, {y, x}, true, false, x,
                                                                     y, x),
                     BezierPath::bezierPathWithJaggedPillInRect(rect, x),
                     BezierPath::bezierPathWithJaggedOvalInRect({{0, 0}, {x, y}}, y),
                     BezierPath::bezierPathWithTriangleInRect(rect, RectEdge::Top),
                 }) {
                CHECK(path.elementCount() > 0);
                CHECK(path.elementCount() <= 8 * 2 * 65536 + 2);
            }
        }
    }
}

TEST_CASE("the rest of a path follows what was trimmed off") {
    testing::RandomPlane random(41);
    for (int i = 0; i < 300; ++i) {
        BezierPath path = read(u"M1 1");
        path.appendBezierPath(testing::randomPath(random, 3 + random.below(20)));
        const auto length = static_cast<float>(path.length());
        const auto from = static_cast<float>(random.number(0, length));
        const auto to = static_cast<float>(random.number(0, length));
        const BezierPath part = path.bezierPathFromLength(from, to);
        CAPTURE(svgPathData(path));
        const double margin = 0.3 + 0.002 * length;
        REQUIRE(std::abs(part.length() - std::max(to - from, 0.0F)) < margin);
        if (to - from <= margin) continue;
        REQUIRE(distanceBetweenPoints(pointsOf(part).front(), path.pointOnPathAtLength(from)) < 1);
        REQUIRE(part.currentPoint() == path.bezierPathByTrimmingToLength(to).currentPoint());
    }
    const BezierPath square = read(u"M0 0H10V10H0Z");
    CHECK(square.bezierPathFromLength(15, 40) == read(u"M10 5V10H0V0"));
    CHECK(square.bezierPathFromLength(0, 100) == square);
    CHECK(square.bezierPathFromLength(40, 100).isEmpty());
    CHECK(square.bezierPathFromLength(NAN, 10) ==
          read(u"M0 0H10V10").bezierPathByTrimmingToLength(10));
}

}  // namespace QZCore
