#include "QZCore/geometry/hull.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <vector>

#include "QZCore/geometry/rectangles.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {
namespace {

using Points = std::vector<Point>;

/// The corners that `convexHull` finds; it sorts the points.
Points hullOf(Points& points) {
    std::int32_t* indices = nullptr;
    const std::int32_t count =
        convexHull(points.data(), static_cast<std::int32_t>(points.size()), &indices);
    const std::unique_ptr<std::int32_t, decltype(&std::free)> owner(indices, std::free);
    Points corners;
    for (std::int32_t i = 0; i < count; ++i) {
        corners.push_back(points.at(static_cast<std::size_t>(indices[i])));
    }
    return corners;
}

bool byXThenY(const Point& a, const Point& b) { return a.x != b.x ? a.x < b.x : a.y < b.y; }

double area(Point a, Point b, Point c) {
    return (a.x - b.x) * (c.y - b.y) - (a.y - b.y) * (c.x - b.x);
}

/// A chain along points, by a plain reading of the rule.
Points chainOf(const Points& points) {
    Points chain(points.begin(), points.begin() + 2);
    for (std::size_t i = 2; i < points.size(); ++i) {
        chain.push_back(points[i]);
        while (chain.size() >= 3) {
            const Point* last = &chain.back();
            if (area(last[-2], last[-1], last[0]) > 0) break;
            chain.erase(chain.end() - 2);
        }
    }
    return chain;
}

/// The hull by a plain reading of the rule.
Points plainHullOf(Points points) {
    std::sort(points.begin(), points.end(), byXThenY);
    Points hull = chainOf(points);
    std::reverse(points.begin(), points.end());
    const Points back = chainOf(points);
    hull.insert(hull.end(), back.begin() + 1, back.end() - 1);
    return hull;
}

/// Points that use all ways of sorting, and meet on lines and at places.
Points randomPoints(testing::RandomPlane& random, std::size_t count) {
    Points points(count);
    const int kind = random.below(4);
    for (Point& point : points) {
        point = random.point(kind == 0 ? 1000 : 3);
        if (kind == 1) point = {std::floor(point.x), std::floor(point.y)};
        if (kind == 2) point.x = std::exp(40 * point.x);
        if (kind == 3) point = {std::cos(point.x), std::sin(point.x)};
    }
    return points;
}

}  // namespace

TEST_CASE("the hull is that of a plain reading of the rule, and the points are sorted") {
    testing::RandomPlane random(8);
    for (int i = 0; i < 400; ++i) {
        Points points = randomPoints(random, 3 + random.bits() % (i % 20 == 0 ? 3000 : 30));
        Points sorted = points;
        std::sort(sorted.begin(), sorted.end(), byXThenY);
        const Points expected = plainHullOf(points);
        REQUIRE(hullOf(points) == expected);
        REQUIRE(points == sorted);
        REQUIRE(hullOf(points) == expected);
    }
}

TEST_CASE("all points lie within their hull, whose corners all turn the same way") {
    testing::RandomPlane random(9);
    for (int i = 0; i < 100; ++i) {
        Points points(200);
        for (Point& point : points) {
            const int x = random.below(20);
            point = {static_cast<double>(x), static_cast<double>(random.below(20))};
        }
        const Points hull = hullOf(points);
        for (std::size_t a = 0; a < hull.size(); ++a) {
            const Point b = hull[(a + 1) % hull.size()];
            REQUIRE(area(hull[a], b, hull[(a + 2) % hull.size()]) > 0);
            for (const Point& point : points) REQUIRE(area(hull[a], b, point) >= 0);
        }
    }
}

TEST_CASE("the hull of few or of equal points") {
    struct Row {
        const char* why;
        Points points, hull;
    };
    const Row rows[] = {
        {"none", {}, {}},
        {"one: both ends", {{3, 4}}, {{3, 4}, {3, 4}}},
        {"two", {{3, 4}, {1, 2}}, {{1, 2}, {3, 4}}},
        {"three in a line", {{3, 3}, {1, 1}, {2, 2}}, {{1, 1}, {3, 3}}},
        {"three equal ones", {{1, 1}, {1, 1}, {1, 1}}, {{1, 1}, {1, 1}}},
        {"a square and its centre",
         {{0, 0}, {2, 0}, {1, 1}, {2, 2}, {0, 2}},
         {{0, 0}, {0, 2}, {2, 2}, {2, 0}}},
        {"zeros of either sign", {{0.0, 1}, {-0.0, 2}, {0.0, 0}, {1, 1}}, {{0, 0}, {0, 2}, {1, 1}}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        Points points = row.points;
        CHECK(hullOf(points) == row.hull);
    }
}

TEST_CASE("the hull of two aligned rectangles has all of their outer corners") {
    const double places[] = {0, 10, 20, 30};
    for (const double x : places) {
        for (const double y : places) {
            for (const double width : {10.0, 20.0}) {
                Points points(8);
                convertRectToEndPoints({{10, 10}, {10, 10}}, points.data());
                convertRectToEndPoints({{x, y}, {width, 20}}, points.data() + 4);
                const Points hull = hullOf(points);
                for (const Point& point : points) {
                    for (std::size_t a = 0; a < hull.size(); ++a) {
                        REQUIRE(area(hull[a], hull[(a + 1) % hull.size()], point) >= 0);
                    }
                }
            }
        }
    }
}

TEST_CASE("points that are no numbers, counts that are none, and no place for the result") {
    std::int32_t* indices = nullptr;
    Point corner{1, 2};
    for (const std::int32_t count : {0, -1, INT32_MIN}) {
        indices = reinterpret_cast<std::int32_t*>(&corner);
        CHECK(convexHull(&corner, count, &indices) == 0);
        CHECK(indices == nullptr);
    }
    CHECK(convexHull(nullptr, 5, &indices) == 0);
    CHECK(convexHull(&corner, 1, nullptr) == 2);

    const double values[] = {NAN, -NAN, INFINITY, -INFINITY, 1e308, -1e308, 5e-324, 0, 1};
    testing::RandomPlane random(10);
    for (int i = 0; i < 200; ++i) {
        Points points(1 + random.bits() % 2000);
        for (Point& point : points) {
            point = {values[random.below(9)], values[random.below(9)]};
            if (i % 4 == 0) point = {std::isnan(point.x) ? point.x : random.number(0, 1), point.y};
        }
        const Points hull = hullOf(points);
        CHECK(hull.size() >= 2);
        const auto isNumber = [](const Point& point) { return !std::isnan(point.x); };
        CHECK(std::is_partitioned(points.begin(), points.end(), isNumber));
        CHECK(std::is_sorted(points.begin(),
                             std::partition_point(points.begin(), points.end(), isNumber),
                             [](const Point& a, const Point& b) { return cmpPoints(&a, &b) < 0; }));
    }
}

TEST_CASE("cmpPoints looks at x alone; rightTurn is strict") {
    const Point a{1, 5}, b{2, 1}, sameX{1, 9}, none{NAN, 0};
    CHECK(cmpPoints(&a, &b) == -1);
    CHECK(cmpPoints(&b, &a) == 1);
    CHECK(cmpPoints(&a, &sameX) == 0);
    CHECK(cmpPoints(&a, &none) == 0);

    const Point path[] = {{0, 0}, {1, 0}, {2, 1}, {2, -1}, {5, 0}};
    CHECK(rightTurn(path, 0, 1, 2));
    CHECK_FALSE(rightTurn(path, 0, 1, 3));
    CHECK_FALSE(rightTurn(path, 0, 1, 4));
}

}  // namespace QZCore
