#include "QZCore/geometry/rotated_rectangles.h"

#include <cmath>
#include <limits>
#include <vector>

#include "QZCore/geometry/intersections.h"
#include "QZCore/geometry/points.h"
#include "QZCore/geometry/rectangles.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {
namespace {

constexpr float kQuarterTurn = 1.5707964F;

bool lies(Point point, Rect rect) {
    return rect.origin.x <= point.x && point.x < rect.origin.x + rect.size.width &&
           rect.origin.y <= point.y && point.y < rect.origin.y + rect.size.height;
}

std::vector<Point> cornersOf(Rect rect) {
    std::vector<Point> corners(4);
    convertRectToEndPoints(rect, corners.data());
    return corners;
}

/// The selection test by a plain reading of the rule.
bool plainlySelects(Rect selection, Rect rect, float angle, Point center, bool insideFlag) {
    const auto corners = rotateArrayOfPointsAroundPoint(cornersOf(rect), center, angle);
    for (const Point& corner : corners) {
        if (lies(corner, selection)) return true;
    }
    for (std::size_t i = 0; i < 4; ++i) {
        if (intersectionOfRectWithLine(nullptr, selection, corners[i], corners[(i + 1) % 4])) {
            return true;
        }
    }
    if (!insideFlag) return false;
    for (const Point& corner :
         rotateArrayOfPointsAroundPoint(cornersOf(selection), center, -angle)) {
        if (!lies(corner, rect)) return false;
    }
    return true;
}

}  // namespace

TEST_CASE("the extent of a rotated frame; its maximum is never below the smallest float") {
    constexpr double kFloor = 1.1754943508222875e-38;
    constexpr double kHuge = 3.4028234663852886e+38;
    const Rect rect{{0, 0}, {10, 20}};
    CHECK(minimumXYAfterRotation(rect, {5, 10}, 0) == Point{0, 0});
    CHECK(maximumXYAfterRotation(rect, {5, 10}, 0) == Point{10, 20});
    const Point minimum = minimumXYAfterRotation(rect, {5, 10}, kQuarterTurn);
    const Point maximum = maximumXYAfterRotation(rect, {5, 10}, kQuarterTurn);
    CHECK(minimum.x == doctest::Approx(-5));
    CHECK(minimum.y == doctest::Approx(5));
    CHECK(maximum.x == doctest::Approx(15));
    CHECK(maximum.y == doctest::Approx(15));
    CHECK(maximumXYAfterRotation({{-10, -10}, {5, 5}}, {0, 0}, 0) == Point{kFloor, kFloor});
    CHECK(minimumXYAfterRotation({{1e300, 1e300}, {5, 5}}, {0, 0}, 0) == Point{kHuge, kHuge});
    CHECK(minimumXYAfterRotation({{NAN, 1}, {5, 5}}, {0, 0}, 1) == Point{kHuge, kHuge});
}

TEST_CASE("a selection takes what it touches, and what it lies in only on demand") {
    struct Row {
        const char* why;
        Rect selection;
        bool touches, isInside;
    };
    const Rect figure{{0, 0}, {100, 100}};  // turned by an eighth about its centre
    const Row rows[] = {
        {"one corner", {{45, -25}, {10, 10}}, true, false},
        {"an edge, without a corner", {{80, 10}, {10, 10}}, true, false},
        {"all of it", {{-50, -50}, {200, 200}}, true, false},
        {"within", {{45, 45}, {10, 10}}, false, true},
        {"beside an edge, in the unrotated frame", {{1, 1}, {5, 5}}, false, false},
        {"far away", {{500, 500}, {10, 10}}, false, false},
        {"without area, within", {{50, 50}, {0, 0}}, false, true},
        {"of negative extent, across an edge", {{90, 20}, {-10, -10}}, true, false},
        {"not a number: no test rules a crossing out", {{NAN, 0}, {10, 10}}, true, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const auto selects = [&](bool inside) {
            return selectionRectIncludesRotatedRect(row.selection, figure, kQuarterTurn / 2,
                                                    {50, 50}, inside);
        };
        CHECK(selects(false) == row.touches);
        CHECK(selects(true) == (row.touches || row.isInside));
    }
}

TEST_CASE("a selection test answers as a plain reading of the rule does") {
    testing::RandomPlane random(11);
    const double scales[] = {1, 1e-30, 1e-4, 1e7, 1e18, 1e37, 1e300};
    int selected = 0;
    for (int i = 0; i < 50'000; ++i) {
        const double scale = i % 3 != 0 ? 1 : scales[random.below(7)];
        Rect figure = scale == 1 ? random.rect(100, 100) : random.rect(100 * scale, 100 * scale);
        Rect selection = random.rect(150 * scale, 150 * scale);
        const float angle = random.below(4) == 0 ? 0 : static_cast<float>(random.number(-7, 7));
        Point center = random.below(2) == 0 ? centerOfRect(figure) : random.point(100 * scale);
        if (random.below(8) == 0) figure.size.width = -figure.size.width;
        if (random.below(8) == 0) selection.size.height = -selection.size.height;
        if (random.below(8) == 0) selection.origin.x = figure.origin.x + figure.size.width;
        if (random.below(50) == 0) center.x = INFINITY;
        if (random.below(50) == 0) selection.size.width = INFINITY;
        for (const bool inside : {false, true}) {
            const bool expected = plainlySelects(selection, figure, angle, center, inside);
            REQUIRE(selectionRectIncludesRotatedRect(selection, figure, angle, center, inside) ==
                    expected);
            selected += static_cast<int>(expected);
        }
    }
    CHECK(selected > 10'000);
}

TEST_CASE("a rotated rectangle lies in another when its four corners do") {
    const Rect outer{{0, 0}, {100, 40}};
    struct Row {
        const char* why;
        Rect inner;
        float innerAngle, outerAngle;
        bool lies;
    };
    const Row rows[] = {
        {"both upright", {{10, 10}, {20, 20}}, 0, 0, true},
        {"the same edges on top and left", {{0, 0}, {20, 20}}, 0, 0, true},
        {"the same right edge", {{80, 0}, {20, 20}}, 0, 0, false},
        {"turned out of it", {{30, 5}, {60, 10}}, kQuarterTurn, 0, false},
        {"turned into it", {{45, -20}, {10, 80}}, kQuarterTurn, 0, true},
        {"both turned by the same", {{40, 10}, {20, 20}}, 0.5F, 0.5F, true},
        {"the outer turned away", {{5, 5}, {10, 10}}, 0, kQuarterTurn, false},
        {"itself", outer, 0, 0, false},
        {"not a number", {{NAN, 10}, {20, 20}}, 0, 0, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(rotatedRectInRotatedRect(row.inner, outer, row.innerAngle, row.outerAngle) ==
              row.lies);
    }
}

}  // namespace QZCore
