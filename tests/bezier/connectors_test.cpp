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
        StringView ends;
        std::string_view axes;
        double startLength, endLength;
        StringView ropePoints;
        StringView bentPoints{};  // the same when empty
    };
    const Row rows[] = {
        {"half-way", u"M0 0 100 50", "hh", 10, 10, u"M0 0 50 0 50 50 100 50"},
        {"backwards", u"M100 0 0 0", "hh", 10, 60, u"M0 0 60 0 50 0 100 0"},
        {"upright, backwards", u"M0 80 10 0", "vv", 10, 60, u"M10 0 10 60 0 40 0 80"},
        {"mixed, backwards", u"M100 0 0 50", "hv", 10, 10, u"M100 0 160 0 0 25 0 50"},
        {"one above the other", u"M0 0 0 50", "hh", 7, 9, u"M0 0 7 0 -9 50 0 50"},
        {"no start", u"M0 0 9 4", "hh", 0, 1, u"M0 0 0 0 4.5 4 9 4", u"M0 0 0 4 4.5 4 9 4"},
        {"no end", u"M0 0 9 4", "hh", 1, 0, u"M0 0 4.5 0 9 4 9 4", u"M0 0 4.5 0 9 0 9 4"},
        {"no nubs", u"M0 0 9 4", "hh", 0, 0, u"M0 0 0 0 9 4 9 4", u"M0 0 0 4 9 0 9 4"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const std::vector<Point> ends = testing::pointsOf(testing::pathOf(row.ends));
        const bool startsLevel = row.axes[0] == 'h';
        const bool endsLevel = row.axes[1] == 'h';
        const BezierPath rope = BezierPath::bezierPathRopeFromPoint(
            ends[0], ends[1], startsLevel, endsLevel, row.startLength, row.endLength);
        CHECK(rope.elementAtIndex(1) == PathElementType::CurveTo);
        CHECK(testing::pointsOf(rope) == testing::pointsOf(testing::pathOf(row.ropePoints)));
        CHECK(BezierPath::bezierPathBentLinesFromPoint(ends[0], ends[1], startsLevel, endsLevel,
                                                       row.startLength, row.endLength) ==
              testing::pathOf(row.bentPoints.empty() ? row.ropePoints : row.bentPoints));
    }
    const BezierPath rope =
        BezierPath::bezierPathRopeFromPoint({0, 0}, {0.2, 0}, true, true, 0.3, 1e-3);
    // Distances and lengths are floats.
    CHECK(testing::pointsOf(rope) ==
          std::vector<Point>{{0, 0}, {0.3F, 0}, {0.2 - 0.1F, 0}, {0.2, 0}});
    // The points lie inside of the object, which needs no other memory.
    const auto* first = reinterpret_cast<const std::byte*>(rope.elements().points());
    const auto* object = reinterpret_cast<const std::byte*>(&rope);
    CHECK((object < first && first < object + sizeof rope));
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
