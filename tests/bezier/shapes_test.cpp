#include <cmath>
#include <numbers>

#include "QZCore/bezier.h"
#include "QZCore/geometry.h"
#include "support/path_data.h"
#include "support/path_pieces.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {
namespace {

Point pointAt(const Point* segment, float t) {
    Point left[4];
    subdivideBezierAtT(segment, left, nullptr, t);
    return left[3];
}

/// Points on the path, 33 for each element.
std::vector<Point> samplesOf(const BezierPath& path) {
    std::vector<Point> samples;
    for (const auto& [type, points] : testing::piecesOf(path)) {
        if (type == PathElementType::MoveTo) {
            samples.push_back(points[3]);
            continue;
        }
        const bool isCurve = type == PathElementType::CurveTo;
        const Point segment[] = {points[0], isCurve ? points[1] : points[0],
                                 isCurve ? points[2] : points[3], points[3]};
        for (int k = 0; k <= 32; ++k) {
            samples.push_back(pointAt(segment, static_cast<float>(k) / 32));
        }
    }
    return samples;
}

}  // namespace

TEST_CASE("paths through points") {
    const BezierPath line = BezierPath::bezierPathWithLineFromPoint({1, 2}, {3, 4});
    CHECK(line == BezierPath::bezierPathWithPointsArray({{1, 2}, {3, 4}}));
    CHECK(line.elementAtIndex(0) == PathElementType::MoveTo);
    CHECK(line.elementAtIndex(1) == PathElementType::LineTo);
    CHECK(BezierPath::bezierPathWithPointsArray({}).isEmpty());
    CHECK(BezierPath::bezierPathWithPointsArray({{1, 2}}).elementCount() == 1);
}

TEST_CASE("hull paths are closed, even without points") {
    Point points[] = {{0, 0}, {2, 0}, {1, 1}, {2, 2}, {0, 2}};
    BezierPath square = BezierPath::bezierPathWithPointsArray({{0, 0}, {0, 2}, {2, 2}, {2, 0}});
    square.closePath();
    CHECK(BezierPath::bezierPathAsConvexHullContainingPoints(points, 5) == square);
    CHECK(BezierPath::bezierPathAsConvexHullContainingRect({{0, 0}, {2, 1}}, {{0, 1}, {2, 1}}) ==
          square);
    BezierPath closed;
    closed.closePath();
    CHECK(BezierPath::bezierPathAsConvexHullContainingPoints(nullptr, 0) == closed);
    CHECK(BezierPath::bezierPathAsConvexHullContainingPoints(points, -1) == closed);
}

TEST_CASE("a rounded rectangle has round corners and the rectangle's bounds") {
    const Rect rect{{10, 20}, {100, 60}};
    CHECK(BezierPath::bezierPathWithRoundRectInRect(rect, 0) ==
          BezierPath::bezierPathWithRect(rect));
    for (const double radius : {0.5, 10.0, 30.0, 1000.0}) {
        const BezierPath path = BezierPath::bezierPathWithRoundRectInRect(rect, radius);
        const double r = std::min(radius, 30.0);
        const Rect bounds = path.bounds();
        CHECK(bounds.origin.x == doctest::Approx(10));
        CHECK(bounds.origin.y == doctest::Approx(20));
        CHECK(bounds.size.width == doctest::Approx(100));
        CHECK(bounds.size.height == doctest::Approx(60));
        const double length = 2 * (100 - 2 * r) + 2 * (60 - 2 * r) + 2 * std::numbers::pi * r;
        CHECK(std::abs(path.length() - length) < 0.5);
        Point first;
        CHECK(path.elementAtIndex(0, &first) == PathElementType::MoveTo);
        CHECK(first == Point{10, 20 + r});
        CHECK(path.elementAtIndex(path.elementCount() - 1) == PathElementType::ClosePath);
        // Of every point, the distance to the inset rectangle is at most the radius.
        const Rect inset{{10 + r, 20 + r}, {100 - 2 * r, 60 - 2 * r}};
        for (const Point& point : samplesOf(path)) {
            CHECK(std::abs(distanceBetweenRectangles({point, {}}, inset) - r) < 0.001 * r);
        }
    }
}

TEST_CASE("dashes are read in units of the line width") {
    const std::vector<double> kBefore{9, 9};
    struct Row {
        StringView string;
        std::vector<double> dash;
        double phase;
    };
    const Row rows[] = {
        {u"2,1", {6, 3}, 0},
        {u"2,1;4", {6, 3}, 12},
        {u"2,1;", {6, 3}, 0},
        {u"4,,2", {12, 12, 6}, 0},
        {u"4,,,2", {12, 12, 12, 6}, 0},
        {u"4,", {12}, 0},
        {u",4", {12}, 0},
        {u"x,1y, .5", {0, 3, 1.5}, 0},
        {u"0,2;1;5", {0, 6}, 3},
        {u"0;1", {0}, 3},
        {u"", kBefore, 7},
        {u"0", kBefore, 7},
        {u";4", kBefore, 7},
        {u",,;4", kBefore, 7},
    };
    for (const Row& row : rows) {
        BezierPath path;
        path.setLineWidth(3);
        path.setLineDash(kBefore, 7);
        path.setLineDashFromString(row.string);
        CAPTURE(row.string);
        CHECK(path.lineDash() == row.dash);
        CHECK(path.lineDashPhase() == row.phase);
    }
    String many;
    for (int i = 0; i < 40; ++i) many += u"1,";
    BezierPath path;
    path.setLineDashFromString(many + u";2");
    CHECK(path.lineDash() == std::vector<double>(30, 1));
    CHECK(path.lineDashPhase() == 2);
}

TEST_CASE("bounds hold the curve, closely") {
    testing::RandomPlane random(3);
    for (int i = 0; i < 500; ++i) {
        const BezierPath path = testing::randomPath(random, 2 + random.below(12));
        const Rect bounds = path.bounds();
        Rect seen{{INFINITY, INFINITY}, {-INFINITY, -INFINITY}};
        for (const Point& p : samplesOf(path)) {
            seen = {{std::min(seen.origin.x, p.x), std::min(seen.origin.y, p.y)},
                    {std::max(seen.size.width, p.x), std::max(seen.size.height, p.y)}};
        }
        const Point far = bottomRightOfRect(bounds);
        REQUIRE(bounds.origin.x <= seen.origin.x + 1e-9);
        REQUIRE(bounds.origin.y <= seen.origin.y + 1e-9);
        REQUIRE(far.x >= seen.size.width - 1e-9);
        REQUIRE(far.y >= seen.size.height - 1e-9);
        REQUIRE(bounds.origin.x > seen.origin.x - 1);
        REQUIRE(far.y < seen.size.height + 1);
    }
    CHECK(BezierPath().bounds() == Rect{});
    BezierPath raised;
    raised.moveToPoint({0, 0});
    raised.curveToPoint({30, 0}, {10, 20}, {20, 20});
    CHECK(raised.bounds() == Rect{{0, 0}, {30, 15}});
    raised.lineToPoint({NAN, INFINITY});
    CHECK(raised.bounds() == Rect{{0, 0}, {30, INFINITY}});
}

TEST_CASE("transforms move points; those that would do nothing leave the path alone") {
    testing::RandomPlane random(4);
    const auto isNear = [](const BezierPath& a, const BezierPath& b) {
        REQUIRE(a.elementCount() == b.elementCount());
        for (std::size_t i = 0; i < a.elementCount(); ++i) {
            Point p[3];
            Point q[3];
            a.elementAtIndex(i, p);
            b.elementAtIndex(i, q);
            for (int k = 0; k < 3; ++k) REQUIRE(distanceBetweenPoints(p[k], q[k]) < 1e-3F);
        }
    };
    for (int i = 0; i < 100; ++i) {
        const BezierPath path = testing::randomPath(random, 1 + random.below(30));
        const Point center = random.point(50);
        const auto angle = static_cast<float>(random.number(-3, 3));
        BezierPath changed = path;
        changed.rotateByRadians(angle, center);
        if (path.elementAtIndex(0) == PathElementType::MoveTo) {
            CHECK(distanceBetweenPoints(samplesOf(changed)[0],
                                        rotatePointAroundPoint(samplesOf(path)[0], center, angle)) <
                  1e-3F);
        }
        changed.rotateByRadians(-angle, center);
        isNear(changed, path);
        changed.rotateByDegrees(90, center);
        changed.rotateByDegrees(-90, center);
        changed.translateXBy(3, -4);
        changed.translateXBy(-3, 4);
        changed.scaleBy(8);
        changed.scaleBy(0.125);
        isNear(changed, path);
        changed = path;
        changed.rotateByRadians(0);
        changed.rotateByDegrees(0, center);
        changed.translateXBy(0, -0.0);
        changed.scaleBy(1);
        CHECK(changed == path);
    }
    BezierPath square = BezierPath::bezierPathWithRect({{5, 5}, {10, 10}});
    square.scaleBy(2);
    CHECK(square.bounds() == Rect{{10, 10}, {20, 20}});
    square.rotateByDegrees(45);
    const Point center = centerOfRect(square.bounds());
    CHECK(center.x == doctest::Approx(20));
    CHECK(center.y == doctest::Approx(20));
    CHECK(square.bounds().size.width == doctest::Approx(20 * std::numbers::sqrt2));
}

TEST_CASE("level and upright runs are moved to half units") {
    struct Row {
        const char* why;
        StringView path;
        StringView snapped;
    };
    const Row rows[] = {
        {"a slanted run", u"M0 0 10 5", u"M0 0 10 5"},
        {"a level run", u"M.2 3.9 10 3.9", u"M.2 3.5 10 3.5"},
        {"an upright run", u"M-.2 0-.2 7", u"M-.5 0-.5 7"},
        {"no run at all", u"M2 3 2 3", u"M2.5 3.5 2.5 3.5"},
        {"a closing run", u"M0 4 5 9 8 4Z", u"M0 4.5 5 9 8 4.5Z"},
        {"one to the first subpath", u"M0 4M5 9 8 4Z", u"M0 4.5M5 9 8 4.5Z"},
        {"an open one", u"M0 4 5 9 8 4", u"M0 4 5 9 8 4"},
        {"one after the other", u"M0 0 4 0 4 4", u"M0 .5 4.5 .5 4.5 4"},
        {"a closed point", u"M1 2Z", u"M1.5 2.5Z"},
        {"a curve that begins level", u"M0 1C5 1 6 6 9 9", u"M0 1.5C5 1.5 6 6 9 9"},
        {"a curve that ends level", u"M0 0C5 1 6 6 9 9L2 9", u"M0 0C5 1 6 6 9 9.5L2 9.5"},
        {"level as a float is not level", u"M0 1 9 1.000000000001", u"M0 1 9 1.000000000001"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        BezierPath path = testing::pathOf(row.path);
        path.makeSureAllControlPointsAreNonIntegral();
        CHECK(path == testing::pathOf(row.snapped));
    }
    BezierPath closes;
    closes.closePath();
    closes.lineToPoint({1, 1});
    closes.closePath();
    closes.makeSureAllControlPointsAreNonIntegral();
    CHECK(closes.currentPoint() == Point());
}

}  // namespace QZCore
