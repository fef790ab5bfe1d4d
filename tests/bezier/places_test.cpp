#include <cmath>

#include "QZCore/bezier.h"
#include "QZCore/geometry/distances.h"
#include "QZCore/geometry/sentinels.h"
#include "support/path_pieces.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {
namespace {

using testing::Piece;
using testing::piecesOf;

/// A plain reading of the rule.
double plainDistance(const BezierPath& path, const BezierPath& other, Point& offset) {
    offset = {3.4028234663852886e+38, 3.4028234663852886e+38};
    double shortest = 3.4028234663852886e+38;
    const auto pieces = piecesOf(path.bezierPathByFlatteningPath());
    const auto others = piecesOf(other.bezierPathByFlatteningPath());
    if (pieces.empty() || pieces[0].type != PathElementType::MoveTo) return shortest;
    if (others.empty() || others[0].type != PathElementType::MoveTo) return shortest;
    for (const Piece& piece : pieces) {
        if (piece.type == PathElementType::ClosePath) continue;
        for (const auto& [type, s] : others) {
            if (type != PathElementType::LineTo) continue;
            Point delta;
            const float d = distanceBetweenPointAndLine(piece.segment[3], s[0], s[3], &delta);
            if (d < shortest) {
                shortest = d;
                offset = delta;
            }
        }
    }
    return shortest;
}

}  // namespace

TEST_CASE("distances of paths are those of a plain reading of the rules") {
    testing::RandomPlane random(22);
    int apart = 0;
    for (int i = 0; i < 300; ++i) {
        BezierPath path = testing::randomPath(random, random.below(i % 3 == 0 ? 200 : 12));
        BezierPath other = testing::randomPath(random, random.below(12));
        path.scaleBy(0.2);
        other.scaleBy(0.2);
        const Rect away = random.rect(30, 30);
        other.translateXBy(30 + away.origin.x, 30 + away.origin.y);
        Point offset{1, 1};
        const double distance = path.distanceFromPath(other, &offset);
        REQUIRE(path.distanceFromPath(other) == distance);
        if (path.intersectionWithPath(other)) {
            REQUIRE(distance == 0);
            REQUIRE(offset == Point());
            continue;
        }
        Point expected;
        REQUIRE(distance == plainDistance(path, other, expected));
        REQUIRE(offset == expected);
        apart += distance < 1000;
    }
    CHECK(apart > 50);
    Point offset;
    CHECK(BezierPath().distanceFromPath(BezierPath(), &offset) == 3.4028234663852886e+38);
    CHECK(offset == QZHugePoint);
}

TEST_CASE("flat paths follow their curves") {
    testing::RandomPlane random(25);
    for (int i = 0; i < 200; ++i) {
        BezierPath path = testing::randomPath(random, 2 + random.below(10));
        const BezierPath flat = path.bezierPathByFlatteningPath();
        CHECK(flat.currentPoint() == path.currentPoint());
        CHECK(flat.bezierPathByFlatteningPath() == flat);
        CHECK(std::abs(flat.length() - path.length()) < 1 + 0.01 * path.length());
        for (const Piece& piece : piecesOf(path)) {
            if (piece.type != PathElementType::CurveTo) continue;
            Point left[4];
            subdivideBezierAtT(piece.segment, left, nullptr,
                               static_cast<float>(random.number(0, 1)));
            float nearest = 1000;
            for (const auto& [type, s] : piecesOf(flat)) {
                nearest =
                    std::min(nearest, distanceBetweenPointAndLine(left[3], s[0], s[3], nullptr));
            }
            CHECK(nearest < 0.101);
        }
    }
}

TEST_CASE("the fill is what the flat path goes around") {
    testing::RandomPlane random(26);
    int inside = 0;
    for (int i = 0; i < 400; ++i) {
        BezierPath path = testing::randomPath(random, random.below(i % 3 == 0 ? 150 : 14));
        path.setWindingRule(i % 2 == 0 ? WindingRule::NonZero : WindingRule::EvenOdd);
        std::vector<Piece> outline = piecesOf(path.bezierPathByFlatteningPath());
        Point start;
        const std::size_t count = outline.size();
        for (std::size_t k = 0; k <= count; ++k) {  // what closes each subpath
            const bool ends = k == count || outline[k].type == PathElementType::MoveTo;
            const Point from = k == 0 ? Point() : outline[k - 1].segment[3];
            if (ends) outline.push_back({PathElementType::LineTo, {from, {}, {}, start}});
            if (ends && k < count) start = outline[k].segment[3];
        }
        for (int k = 0; k < 20; ++k) {
            const Point p = random.point(100);
            int windings = 0;
            float nearest = 1000;
            for (const auto& [type, s] : outline) {
                if (type == PathElementType::MoveTo) continue;
                nearest = std::min(nearest, distanceBetweenPointAndLine(p, s[0], s[3], nullptr));
                if ((s[0].y <= p.y) == (s[3].y <= p.y)) continue;
                const double x = s[0].x + (p.y - s[0].y) / (s[3].y - s[0].y) * (s[3].x - s[0].x);
                if (x > p.x) windings += s[0].y <= p.y ? 1 : -1;
            }
            if (nearest < 0.2) continue;
            const bool isInside = i % 2 == 0 ? windings != 0 : windings % 2 != 0;
            REQUIRE(path.containsPoint(p) == isInside);
            inside += isInside;
        }
    }
    CHECK(inside > 500);
    const BezierPath square = BezierPath::bezierPathWithRect({{0, 0}, {10, 10}});
    CHECK(square.containsPoint({0, 5}));
    CHECK_FALSE(square.containsPoint({10, 5}));
}

TEST_CASE("what contains a path") {
    const BezierPath square = BezierPath::bezierPathWithRect({{0, 0}, {10, 10}});
    BezierPath ring = square;
    ring.appendBezierPath(BezierPath::bezierPathWithRect({{2, 2}, {6, 6}}));
    ring.setWindingRule(WindingRule::EvenOdd);
    const BezierPath point = BezierPath::bezierPathWithPointsArray({{5, 5}});
    const BezierPath leaving = BezierPath::bezierPathWithLineFromPoint({-5, 5}, {1, 5});
    const BezierPath entering = BezierPath::bezierPathWithLineFromPoint({1, 5}, {-5, 5});
    CHECK_FALSE(square.containsPath(BezierPath()));
    CHECK(square.containsPath(square));
    CHECK(ring.containsPath(point));      // by the bounds alone
    CHECK(square.containsPath(leaving));  // whose first point does not count
    CHECK_FALSE(square.containsPath(entering));
    CHECK_FALSE(BezierPath().containsPath(square));
}

}  // namespace QZCore
