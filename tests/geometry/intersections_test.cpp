#include "QZCore/geometry/intersections.h"

#include <cmath>

#include "QZCore/geometry/rectangles.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {
namespace {

/// Twice the signed area of a triangle of whole coordinates, exactly.
long turn(Point a, Point b, Point c) {
    const auto difference = [](double p, double q) { return static_cast<long>(p - q); };
    return difference(b.x, a.x) * difference(c.y, a.y) -
           difference(b.y, a.y) * difference(c.x, a.x);
}

int sign(long value) { return value > 0 ? 1 : (value < 0 ? -1 : 0); }

/// Whether segments that are not parallel have a point in common.
bool meet(Point a1, Point a2, Point b1, Point b2) {
    return sign(turn(a1, a2, b1)) * sign(turn(a1, a2, b2)) <= 0 &&
           sign(turn(b1, b2, a1)) * sign(turn(b1, b2, a2)) <= 0;
}

bool areParallel(Point a1, Point a2, Point b1, Point b2) {
    return turn({}, {a2.x - a1.x, a2.y - a1.y}, {b2.x - b1.x, b2.y - b1.y}) == 0;
}

}  // namespace

TEST_CASE("segments cross where they cross exactly, unless they are parallel") {
    testing::RandomPlane random(6);
    const auto wholePoint = [&] {
        const int x = random.below(9);
        return Point{static_cast<double>(x), static_cast<double>(random.below(9))};
    };
    for (int i = 0; i < 20'000; ++i) {
        const Point a1 = wholePoint(), a2 = wholePoint(), b1 = wholePoint(), b2 = wholePoint();
        CAPTURE(a1);
        CAPTURE(a2);
        CAPTURE(b1);
        CAPTURE(b2);
        const bool expected = !areParallel(a1, a2, b1, b2) && meet(a1, a2, b1, b2);
        Point crossing{-7, -7};
        REQUIRE(intersectionOfLineSegments(&crossing, a1, a2, b1, b2) == expected);
        REQUIRE(intersectionOfLineSegments(nullptr, b2, b1, a1, a2) == expected);
        REQUIRE((crossing == Point{-7, -7}) == !expected);
    }
}

TEST_CASE("a crossing is reported half a unit further from the first segment's start") {
    struct Row {
        const char* why;
        Point a1, a2, b1, b2, crossing;
    };
    const Row rows[] = {
        {"a cross", {0, 0}, {10, 10}, {0, 10}, {10, 0}, {5.5, 5.5}},
        {"backwards", {10, 10}, {0, 0}, {0, 10}, {10, 0}, {4.5, 4.5}},
        {"the other segment backwards", {0, 0}, {10, 10}, {10, 0}, {0, 10}, {5.5, 5.5}},
        {"down and left", {10, 0}, {0, 10}, {0, 0}, {10, 10}, {4.5, 5.5}},
        {"along x, across a line down", {0, 5}, {10, 5}, {5, 0}, {5, 10}, {5.5, 5.5}},
        {"along x, across a line up", {0, 5}, {10, 5}, {5, 10}, {5, 0}, {5.5, 4.5}},
        {"touching at an end", {0, 0}, {10, 10}, {10, 10}, {20, 0}, {10.5, 10.5}},
        {"rounded in single precision", {0, 0}, {3, 1}, {0, 1}, {3, 0}, {2, 1}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        Point crossing;
        CHECK(intersectionOfLineSegments(&crossing, row.a1, row.a2, row.b1, row.b2));
        CHECK(crossing == row.crossing);
    }
}

TEST_CASE("a line meets a rectangle at the first edge in order") {
    const Rect rect{{0, 0}, {100, 50}};
    struct Row {
        const char* why;
        Point a, b;
        bool meets;
        Point crossing;
    };
    const Row rows[] = {
        {"through top and bottom: top", {50, 60}, {50, -10}, true, {50.5, -0.5}},
        {"through right and left: right", {-10, 25}, {110, 25}, true, {100.5, 25.5}},
        {"through bottom and left: bottom", {20, 60}, {-20, 20}, true, {9.5, 49.5}},
        {"left only", {-10, 25}, {10, 25}, true, {0.5, 25.5}},
        {"inside", {10, 10}, {20, 30}, false, {}},
        {"outside", {-10, -10}, {200, -20}, false, {}},
        {"along an edge: the edges beside it", {-10, 0}, {110, 0}, true, {100.5, 0.5}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        Point crossing;
        CHECK(intersectionOfRectWithLine(&crossing, rect, row.a, row.b) == row.meets);
        CHECK(intersectionOfRectWithLine(nullptr, rect, row.a, row.b) == row.meets);
        CHECK(crossing == row.crossing);
    }
}

TEST_CASE("a connecting line leaves its figure where it crosses the outline") {
    testing::RandomPlane random(7);
    for (int i = 0; i < 1000; ++i) {
        const Rect rect = random.rect(100, 100);
        const Point remote = random.point(400);
        Point crossing{-1, -1};
        Point same{-1, -1};
        const bool leaves =
            intersectionOfRectWithLineFromCenterToRemotePoint(&crossing, rect, remote);
        REQUIRE(leaves == intersectionOfRectWithLine(&same, rect, centerOfRect(rect), remote));
        REQUIRE(crossing == same);
        const bool isBeyond =
            remote.x < rect.origin.x || remote.x > rect.origin.x + rect.size.width ||
            remote.y < rect.origin.y || remote.y > rect.origin.y + rect.size.height;
        REQUIRE(leaves == isBeyond);
    }
}

}  // namespace QZCore
