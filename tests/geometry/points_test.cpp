#include "QZCore/geometry/points.h"

#include <cmath>

#include "QZCore/geometry/angles.h"
#include "QZCore/geometry/distances.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {

TEST_CASE("points are rounded in single precision") {
    struct Row {
        const char* why;
        double value, round, floor;
    };
    const Row rows[] = {
        {"above a whole number", 3.9, 4, 3},
        {"below zero", -0.2, -0.0, -1},
        {"a half, away from zero", 2.5, 3, 2},
        {"a half below zero", -2.5, -3, -3},
        {"whole as a float, not as a double", 2.99999999, 3, 3},
        {"a half as a float, not as a double", 0.49999999, 1, 0},
        {"beyond the whole floats", 16777217, 16777216, 16777216},
        {"the largest float", 3.4028234663852886e+38, 3.4028234663852886e+38,
         3.4028234663852886e+38},
        {"beyond the floats", 1e308, INFINITY, INFINITY},
        {"hardly anything", -1e-310, -0.0, -0.0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(roundPoint({row.value, 7.5}) == Point{row.round, 8});
        CHECK(roundPoint({7.5, row.value}) == Point{8, row.round});
        CHECK(integralPoint({row.value, 7.5}) == Point{row.floor, 7});
        CHECK(integralPoint({7.5, row.value}) == Point{7, row.floor});
        CHECK(nonIntegralPoint({row.value, 7.5}) == Point{row.floor + 0.5, 7.5});
        CHECK(nonIntegralPoint({7.5, row.value}) == Point{7.5, row.floor + 0.5});
    }
    CHECK(std::isnan(nonIntegralPoint({NAN, 0}).x));
}

TEST_CASE("offsets add and take away; a relative point is one in polar form") {
    CHECK(offsetPoint({1, 2}, 0.5F, -3) == Point{1.5, -1});
    CHECK(offsetPointByPoint({1, 2}, {10, 0.25}) == Point{11, 2.25});
    CHECK(subtractPointByPoint({11, 2.25}, {10, 0.25}) == Point{1, 2});
    CHECK(offsetPoint({0, 0}, 0.1F, 0) == Point{0.10000000149011612, 0});
    CHECK(relativePoint({1, 2}, 5, 0) == Point{6, 2});
    CHECK(relativePoint({1, 2}, 0, 123) == Point{1, 2});

    testing::RandomPlane random(1);
    for (int i = 0; i < 1000; ++i) {
        const Point center = random.point(100);
        const Point point = random.point(100);
        const Point again = relativePoint(center, distanceBetweenPoints(point, center),
                                          radiansBetweenPoints(point, center));
        REQUIRE(distanceBetweenPoints(again, point) < 1e-4F);
    }
}

TEST_CASE("rotation keeps the distance and adds to the direction; 0 changes nothing") {
    testing::RandomPlane random(2);
    for (int i = 0; i < 1000; ++i) {
        const Point center = random.point(1000);
        const Point point = random.point(1000);
        const auto angle = static_cast<float>(random.number(-7, 7));
        const Point rotated = rotatePointAroundPoint(point, center, angle);
        const double dx = point.x - center.x;
        const double dy = point.y - center.y;
        const Point exact{center.x + dx * std::cos(angle) - dy * std::sin(angle),
                          center.y + dx * std::sin(angle) + dy * std::cos(angle)};
        REQUIRE(distanceBetweenPoints(rotated, exact) < 2e-3F);
        REQUIRE(rotatePointAroundPoint(point, center, 0) == point);
        REQUIRE(rotatePointAroundPoint(center, center, angle) == center);
    }
    CHECK(rotatePointAroundPoint({NAN, INFINITY}, {0, 0}, 0).y == INFINITY);
}

TEST_CASE("an array is rotated point by point, and kept when the angle is 0") {
    const std::vector<Point> points{{1, 0}, {0, 0}, {-3, 4}, {1, 0}};
    const std::vector<Point> rotated = rotateArrayOfPointsAroundPoint(points, {1, 1}, 0.5F);
    REQUIRE(rotated.size() == points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        CHECK(rotated[i] == rotatePointAroundPoint(points[i], {1, 1}, 0.5F));
    }
    CHECK(rotateArrayOfPointsAroundPoint({}, {1, 1}, 0.5F).empty());

    std::vector<Point> handedOver = points;
    const Point* storage = handedOver.data();
    const std::vector<Point> same =
        rotateArrayOfPointsAroundPoint(std::move(handedOver), {1, 1}, 0);
    CHECK(same == points);
    CHECK(same.data() == storage);
}

}  // namespace QZCore
