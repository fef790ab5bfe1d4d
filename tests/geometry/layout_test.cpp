#include <cmath>

#include "QZCore/geometry.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {

TEST_CASE("sizes grow, shrink, are rounded and cropped") {
    CHECK(deltaSize({1, 20}, {10, 5}) == Size{9, -15});
    CHECK(growSize({1, 20}, 0.5F, -30) == Size{1.5, -10});
    CHECK(scaleSize({1, 20}, -0.1) == Size{-0.1, -2});
    CHECK(integralSize({1.2, 3.0}) == Size{2, 3});
    CHECK(ceilSize({-1.2, 16777216.5}) == Size{-1, 16777217});
    CHECK(floorSize({-1.2, 16777216.5}) == Size{-2, 16777216});
    CHECK(cropSize({10, 5}, {7, 8}) == Size{7, 5});
}

TEST_CASE("a size is scaled by one factor; limits that are not positive do not count") {
    struct Row {
        const char* why;
        Size size, max, scaled;
    };
    const Row rows[] = {
        {"by the width", {10, 10}, {5, 20}, {5, 5}},
        {"by the height", {10, 10}, {20, 5}, {5, 5}},
        {"up", {10, 20}, {100, 100}, {50, 100}},
        {"no width limit", {10, 20}, {0, 10}, {5, 10}},
        {"a negative height limit", {10, 20}, {20, -1}, {20, 40}},
        {"no limit", {10, 20}, {0, -1}, {10, 20}},
        {"limits that are no numbers", {10, 20}, {NAN, NAN}, {10, 20}},
        {"no width", {0, 20}, {10, 10}, {0, 10}},
        {"an endless limit", {10, 20}, {INFINITY, 40}, {20, 40}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(scaleSizeProportionallyInSize(row.size, row.max) == row.scaled);
    }
    // The factor of a rectangle is a float, that of a size is not.
    const Rect rect{{1, 2}, {30, 60}};
    CHECK(scaleSizeProportionallyInSize(rect.size, {10, 100}).width == 10);
    CHECK(scaleRectProportionallyInRect(rect, {{}, {10, 100}}) ==
          Rect{{1, 2}, {30 * 0.3333333432674408, 60 * 0.3333333432674408}});
}

TEST_CASE("anchors are the corners, the middles of the edges and the centre") {
    const Rect rect{{1, 2}, {10, 20}};
    struct Row {
        Point (*anchor)(Rect);
        Point point;
    };
    const Row rows[] = {
        {topLeftOfRect, {1, 2}},       {topCenterOfRect, {6, 2}},
        {topRightOfRect, {11, 2}},     {rightCenterOfRect, {11, 12}},
        {bottomRightOfRect, {11, 22}}, {pointOnRectOppositeOrigin, {11, 22}},
        {bottomCenterOfRect, {6, 22}}, {bottomLeftOfRect, {1, 22}},
        {leftCenterOfRect, {1, 12}},   {centerOfRect, {6, 12}},
    };
    for (const Row& row : rows) CHECK(row.anchor(rect) == row.point);

    Point corners[4];
    convertRectToEndPoints(rect, corners);
    CHECK(corners[0] == Point{1, 2});
    CHECK(corners[1] == Point{1, 22});
    CHECK(corners[2] == Point{11, 22});
    CHECK(corners[3] == Point{11, 2});
    convertRectToEndPoints(rect, nullptr);

    CHECK(rectFromPoints({11, 2}, {1, 22}) == rect);
    CHECK(rectFromSize({10, 20}) == Rect{{0, 0}, {10, 20}});
    CHECK(rectFromOriginSize({1, 2}, {10, 20}) == rect);
}

TEST_CASE("placing moves the origin and keeps the size") {
    const Rect rect{{5, 6}, {10, 12}};
    const Rect container{{100, 200}, {40, 60}};
    struct Row {
        Rect (*place)(Rect, Rect);
        Point origin;
    };
    const Row rows[] = {
        {topRectInRect, {100, 200}},
        {bottomRectInRect, {100, 248}},
        {verticallyCenterRectInRect, {100, 224}},
        {horizontallyCenterRectInRect, {115, 200}},
        {centerRectInRect, {115, 224}},
        {topThirdRectInRect, {115, 216}},
        {leftAlignRectToRect, {100, 6}},
        {stackRectOverRect, {5, 187}},
        {stackRectUnderRect, {5, 261}},
        {leftStackRectOverRect, {100, 187}},
        {leftStackRectUnderRect, {100, 261}},
    };
    for (const Row& row : rows) CHECK(row.place(rect, container) == Rect{row.origin, rect.size});
    CHECK(stackRectUnderRect({{5, 5}, {10, 10}}, {{0, 0}, {100, 20}}) == Rect{{5, 21}, {10, 10}});
    CHECK(centerRectInRect({{}, {10, 10}}, {{}, {4, 4}}).origin == Point{-3, -3});
    CHECK(scaleRect(rect, 0.5) == Rect{{2.5, 3}, {5, 6}});
}

TEST_CASE("rectangles are rounded to whole units, or to half ones") {
    CHECK(integralRect({{0.5, 0.5}, {1.2, 1.2}}) == Rect{{0, 0}, {2, 2}});
    CHECK(integralRect({{-0.5, 7}, {0, -1.5}}) == Rect{{-1, 7}, {0, -1}});
    CHECK(nonIntegralRect({{0.7, -0.2}, {10.2, 10}}) == Rect{{0.5, -0.5}, {10, 10}});
    CHECK(nonIntegralRect({{2.99999999, 0}, {0.49999999, 1}}) == Rect{{3.5, 0.5}, {1, 1}});

    testing::RandomPlane random(3);
    for (int i = 0; i < 1000; ++i) {
        const Rect rect = nonIntegralRect(random.rect(1000, 100));
        REQUIRE(nonIntegralPoint(rect.origin) == rect.origin);
        REQUIRE(nonIntegralPoint(bottomRightOfRect(rect)) == bottomRightOfRect(rect));
        REQUIRE(nonIntegralRect(rect) == rect);
    }
}

}  // namespace QZCore
