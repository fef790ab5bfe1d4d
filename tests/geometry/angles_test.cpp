#include "QZCore/geometry/angles.h"

#include <cmath>
#include <numbers>

#include "QZCore/geometry/rectangles.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {
namespace {

constexpr float kHalfTurn = std::numbers::pi_v<float>;

}  // namespace

TEST_CASE("the direction between points goes from the second to the first") {
    struct Row {
        const char* why;
        Point to, from;
        float radians, degrees;
    };
    const Row rows[] = {
        {"along +x", {1, 0}, {0, 0}, 0, 0},
        {"along -x", {0, 0}, {1, 0}, kHalfTurn, 180},
        {"towards +y", {0, 1}, {0, 0}, kHalfTurn / 2, 90},
        {"towards -y", {0, 0}, {0, 1}, -kHalfTurn / 2, 270},
        {"equal points", {7, 7}, {7, 7}, 0, 0},
        {"equal zeros", {-0.0, -1}, {0.0, -1}, 0, 0},
        {"equal infinite points", {INFINITY, 1}, {INFINITY, 1}, 0, 0},
        {"rounded to a full turn", {1, -1e-9}, {0, 0}, -1e-9F, 360},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(radiansBetweenPoints(row.to, row.from) == row.radians);
        CHECK(degreesBetweenPoints(row.to, row.from) == row.degrees);
    }
    CHECK(std::isnan(radiansBetweenPoints({NAN, 0}, {NAN, 0})));
}

TEST_CASE("degrees and radians convert in double precision") {
    CHECK(radiansFromDegrees(180) == kHalfTurn);
    CHECK(degreesFromRadians(kHalfTurn) == 180);
    for (int i = -1000; i <= 1000; ++i) {
        const auto degrees = static_cast<float>(i) * 0.9F;
        const float radians = radiansFromDegrees(degrees);
        REQUIRE(radians == static_cast<float>(degrees * std::numbers::pi / 180));
        REQUIRE(std::abs(degreesFromRadians(radians) - degrees) < 1e-4F);
    }
}

TEST_CASE("the distance from a right angle goes up and down by bands") {
    struct Row {
        float degrees, distance;
    };
    const Row rows[] = {
        {350, 10},
        {300, 30},
        {45, 45},
        {46, 44},
        {90, 0},
        {91, 1},
        {135, 45},
        {136, 44},
        {180, 0},
        {225, 45},
        {226, 44},
        {270, 0},
        {315, 45},
        {316, 44},
        {360, 0},
        {0, 0},
        {400, -40},
        {-10, -10},
        {INFINITY, -INFINITY},
    };
    for (const Row& row : rows) {
        CAPTURE(row.degrees);
        CHECK(degreesFromNearest45(row.degrees) == row.distance);
    }
    CHECK(std::isnan(degreesFromNearest45(NAN)));
}

TEST_CASE("on a rectangle, corners are at 45 degrees whatever its aspect ratio") {
    const Rect rect{{0, 0}, {100, 50}};
    struct Row {
        const char* why;
        float degrees;
        Point point;
    };
    const Row rows[] = {
        {"right", 0, {100, 25}},     {"down right", 45, {100, 50}}, {"down", 90, {50, 50}},
        {"down left", 135, {0, 50}}, {"left", 180, {0, 25}},        {"up left", 225, {0, 0}},
        {"up", 270, {50, 0}},        {"up right", 315, {100, 0}},   {"steep", 75, {63.39746, 50}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const Point point = pointOnRectFromAngle(rect, radiansFromDegrees(row.degrees));
        CHECK(point.x == doctest::Approx(row.point.x));
        CHECK(point.y == doctest::Approx(row.point.y));
        const float angle = angleOfPointOnRect(rect, row.point);
        CHECK(std::remainder(angle - radiansFromDegrees(row.degrees), 2 * kHalfTurn) ==
              doctest::Approx(0).epsilon(1e-6));
    }
    CHECK(pointOnRectFromAngle(rect, 0) == Point{100, 25});
    CHECK(pointOnRectFromAngle({{3, 4}, {0, 0}}, 1) == Point{3, 4});
}

TEST_CASE("a point on the outline has the angle that it was made from") {
    testing::RandomPlane random(4);
    for (int i = 0; i < 1000; ++i) {
        const Rect rect = random.rect(100, 100);
        const auto angle = static_cast<float>(random.number(-3.1, 3.1));
        const float again = angleOfPointOnRect(rect, pointOnRectFromAngle(rect, angle));
        REQUIRE(std::abs(again - angle) < 1e-3F);
    }
}

}  // namespace QZCore
