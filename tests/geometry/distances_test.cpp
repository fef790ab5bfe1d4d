#include "QZCore/geometry/distances.h"

#include <cmath>

#include "QZCore/geometry/rectangles.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {

TEST_CASE("distances are symmetric, and 0 for equal points only") {
    CHECK(distanceBetweenPoints({1, 1}, {4, 5}) == 5);
    CHECK(distanceSquaredBetweenPoints({1, 1}, {4, 5}) == 25);
    CHECK(distanceBetweenPoints({INFINITY, 0}, {INFINITY, 0}) == 0);
    CHECK(distanceBetweenPoints({1e200, 0}, {0, 0}) == INFINITY);
    CHECK(std::isnan(distanceBetweenPoints({NAN, 0}, {NAN, 0})));
    for (int i = -20; i <= 20; ++i) {
        for (int j = -20; j <= 20; ++j) {
            const Point p{i * 0.25, j * 1.5};
            const Point q{j * 0.75, i * -2.0};
            const float distance = distanceBetweenPoints(p, q);
            REQUIRE(distance == distanceBetweenPoints(q, p));
            REQUIRE((distance == 0) == (p == q));
            REQUIRE(distance == std::sqrt(distanceSquaredBetweenPoints(q, p)));
        }
    }
}

TEST_CASE("a segment's distance is that of its nearest point, which the delta leads to") {
    struct Row {
        const char* why;
        Point point, a, b;
        float distance;
        Point delta;
    };
    const Row rows[] = {
        {"beside the middle", {5, 3}, {0, 0}, {10, 0}, 3, {0, -3}},
        {"beyond the start", {-3, 4}, {0, 0}, {10, 0}, 5, {3, -4}},
        {"beyond the end", {13, 4}, {0, 0}, {10, 0}, 5, {-3, -4}},
        {"no length", {3, 4}, {0, 0}, {0, 0}, 5, {-3, -4}},
        {"no length in single precision", {4e-46, 0}, {0, 0}, {5e-46, 0}, 0, {0, 0}},
        {"an end too far for a float", {3, 4}, {0, 0}, {1e300, 0}, NAN, {NAN, -4}},
        {"an infinite point", {INFINITY, 0}, {0, 0}, {10, 0}, INFINITY, {-INFINITY, 0}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        Point delta{7, 7};
        const float distance = distanceBetweenPointAndLine(row.point, row.a, row.b, &delta);
        CHECK((distance == row.distance || (std::isnan(distance) && std::isnan(row.distance))));
        CHECK((delta.x == row.delta.x || (std::isnan(delta.x) && std::isnan(row.delta.x))));
        CHECK(delta.y == row.delta.y);
    }
    testing::RandomPlane random(5);
    for (int i = 0; i < 1000; ++i) {
        const Point point = random.point(100);
        const Point a = random.point(100);
        const Point b = random.point(100);
        Point delta;
        const float squared = distanceSquaredBetweenPointAndLine(point, a, b, &delta);
        REQUIRE(squared == distanceSquaredBetweenPoints(delta, {}));
        REQUIRE(std::sqrt(squared) == distanceBetweenPointAndLine(point, a, b, nullptr));
        REQUIRE(squared <= distanceSquaredBetweenPoints(point, a) * 1.0001F);
        REQUIRE(squared <= distanceSquaredBetweenPoints(point, b) * 1.0001F);
    }
}

TEST_CASE("a point is near a line inside of the grown rectangle only") {
    struct Row {
        const char* why;
        Point point, a, b;
        float tolerance;
        bool isNear;
    };
    const Row rows[] = {
        {"on it", {5, 5}, {0, 0}, {10, 10}, 0, true},
        {"at the start", {0, 0}, {0, 0}, {10, 10}, 0, true},
        {"at the end, which no longer belongs to the rectangle",
         {10, 10},
         {0, 0},
         {10, 10},
         0,
         false},
        {"at the end, with tolerance", {10, 10}, {0, 0}, {10, 10}, 1, true},
        {"on the line but beyond the end", {12, 12}, {0, 0}, {10, 10}, 1, false},
        {"a gap along x", {5, 7}, {0, 0}, {100, 10}, 2, false},
        {"a smaller gap along y", {30, 4}, {0, 0}, {100, 10}, 1, true},
        {"a smaller gap along x", {4, 30}, {0, 0}, {10, 100}, 1, true},
        {"beside a vertical line", {11, 5}, {10, 0}, {10, 10}, 1.5F, true},
        {"on the left edge of its rectangle", {8.5, 5}, {10, 0}, {10, 10}, 1.5F, true},
        {"on the right edge of its rectangle", {11.5, 5}, {10, 0}, {10, 10}, 1.5F, false},
        {"beside a horizontal line", {5, 11}, {0, 10}, {10, 10}, 1.5F, true},
        {"above a horizontal line", {5, 8.4}, {0, 10}, {10, 10}, 1.5F, false},
        {"at a point", {3.5, 3.5}, {3, 3}, {3, 3}, 1, true},
        {"a slope that is 0 as a float", {5, 1e-50}, {0, 0}, {10, 2e-50}, 1, true},
        {"a negative tolerance", {5, 5}, {0, 0}, {10, 10}, -1, false},
        {"not a number", {NAN, 5}, {0, 0}, {10, 10}, 1, false},
        {"a tolerance that is none", {5, 5}, {0, 0}, {10, 10}, NAN, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(isPointNearLine(row.point, row.a, row.b, row.tolerance) == row.isNear);
    }
}

TEST_CASE("the gap of rectangles is 0 when they overlap or touch") {
    struct Row {
        const char* why;
        Rect a, b;
        float gap;
    };
    const Row rows[] = {
        {"across a corner", {{0, 0}, {10, 10}}, {{13, 14}, {5, 5}}, 5},
        {"overlapping", {{0, 0}, {10, 10}}, {{9, 9}, {5, 5}}, 0},
        {"one in the other", {{0, 0}, {10, 10}}, {{4, 4}, {1, 1}}, 0},
        {"sharing an edge", {{0, 0}, {10, 10}}, {{10, 0}, {10, 10}}, 0},
        {"side by side", {{0, 0}, {10, 10}}, {{12, 3}, {10, 10}}, 2},
        {"one above the other", {{0, 0}, {10, 10}}, {{3, 13}, {10, 10}}, 3},
        {"without area, inside", {{0, 0}, {10, 10}}, {{5, 5}, {0, 0}}, 0},
        {"infinitely far", {{0, 0}, {10, 10}}, {{INFINITY, 0}, {10, 10}}, INFINITY},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(distanceBetweenRectangles(row.a, row.b) == row.gap);
        CHECK(distanceBetweenRectangles(row.b, row.a) == row.gap);
    }
}

}  // namespace QZCore
