#include <cmath>

#include "QZCore/bezier.h"
#include "QZCore/geometry.h"
#include "support/path_data.h"
#include "support/plane_printing.h"

namespace QZCore {
namespace {

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
                                                  row.endLength) == testing::pathOf(row.rope));
        CHECK(BezierPath::bezierPathBentLinesFromPoint(row.p, row.q, row.isStartHorizontal,
                                                       row.isEndHorizontal, row.startLength,
                                                       row.endLength) == testing::pathOf(row.bent));
    }
    // Distances and lengths are floats.
    CHECK(testing::pointsOf(
              BezierPath::bezierPathRopeFromPoint({0, 0}, {0.2, 0}, true, true, 0.3, 1e-3)) ==
          std::vector<Point>{{0, 0}, {0.3F, 0}, {0.2 - 0.1F, 0}, {0.2, 0}});
}

TEST_CASE("a triangle has its apex on the edge") {
    const Rect rect{{10, 20}, {40, 30}};
    CHECK(BezierPath::bezierPathWithTriangleInRect(rect, RectEdge::Left) ==
          testing::pathOf(u"M10 35 50 20 50 50Z"));
    CHECK(BezierPath::bezierPathWithTriangleInRect(rect, RectEdge::Top) ==
          testing::pathOf(u"M30 20 50 50 10 50Z"));
    CHECK(BezierPath::bezierPathWithTriangleInRect(rect, RectEdge::Right) ==
          testing::pathOf(u"M50 35 10 50 10 20Z"));
    CHECK(BezierPath::bezierPathWithTriangleInRect(rect, RectEdge::Bottom) ==
          testing::pathOf(u"M30 50 10 20 50 20Z"));
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

}  // namespace QZCore
