#include <cmath>
#include <optional>

#include "QZCore/bezier.h"
#include "QZCore/geometry/distances.h"
#include "support/path_pieces.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {
namespace {

/// A distance in single precision throughout.
float floatDistance(Point a, Point b) {
    const auto dx = static_cast<float>(b.x - a.x);
    const auto dy = static_cast<float>(b.y - a.y);
    return std::sqrt(dx * dx + dy * dy);
}

// A plain reading of the rules.

float plainLength(const Point* s, float maxError) {
    const float polygon =
        floatDistance(s[0], s[1]) + floatDistance(s[1], s[2]) + floatDistance(s[2], s[3]);
    const float chord = floatDistance(s[0], s[3]);
    if (polygon - chord <= maxError) return (polygon + chord) / 2;
    Point left[4];
    Point right[4];
    subdivideBezierAtT(s, left, right, 0.5F);
    return plainLength(left, maxError) + plainLength(right, maxError);
}

using testing::Piece;
using testing::piecesOf;

float plainLength(const Piece& piece, float maxError) {
    if (piece.type == PathElementType::MoveTo) return 0;
    return piece.type == PathElementType::CurveTo
               ? plainLength(piece.segment, maxError)
               : distanceBetweenPoints(piece.segment[0], piece.segment[3]);
}

float plainLength(const std::vector<Piece>& pieces) {
    float total = 0;
    for (const Piece& piece : pieces) total += plainLength(piece, 0.1F);
    return total;
}

void append(BezierPath& path, const Piece& piece) {
    const Point* s = piece.segment;
    if (piece.type == PathElementType::MoveTo) path.moveToPoint(s[3]);
    if (piece.type == PathElementType::LineTo) path.lineToPoint(s[3]);
    if (piece.type == PathElementType::CurveTo) path.curveToPoint(s[3], s[1], s[2]);
    if (piece.type == PathElementType::ClosePath) path.closePath();
}

Piece plainCut(Piece piece, double remaining, float maxError) {
    float low = 0, high = 1, t = 0.5F, before = -1;
    Point left[4];
    while (t != before) {
        subdivideBezierAtT(piece.segment, left, nullptr, t);
        const float measured = plainLength(left, maxError / 2);
        if (std::abs(remaining - measured) < maxError) break;
        before = t;
        if (remaining > measured) {
            low = t;
            t = (high + t) / 2;
        } else if (remaining < measured) {
            high = t;
            t = (low + t) / 2;
        }
    }
    return {PathElementType::CurveTo, {left[0], left[1], left[2], left[3]}};
}

BezierPath plainlyTrimmed(const BezierPath& path, float length, float maxError) {
    const std::vector<Piece> pieces = piecesOf(path);
    if (length >= plainLength(pieces)) return path;
    BezierPath trimmed;
    float total = 0;
    for (const Piece& piece : pieces) {
        const float own = plainLength(piece, maxError);
        if (piece.type == PathElementType::MoveTo || total + own <= length) {
            append(trimmed, piece);
            total += own;
            continue;
        }
        const double remaining = static_cast<double>(length) - total;
        const Point* s = piece.segment;
        if (piece.type == PathElementType::CurveTo) {
            append(trimmed, plainCut(piece, remaining, maxError));
        } else {
            const double t = remaining / own;
            trimmed.lineToPoint({s[0].x + t * (s[3].x - s[0].x), s[0].y + t * (s[3].y - s[0].y)});
        }
        break;
    }
    return trimmed;
}

struct End {
    Point point;
    std::optional<float> slope;
};

End plainEnd(const BezierPath& path, float length) {
    if (path.elementCount() < 2) return {};
    if (length <= 0) {
        Point first[3];
        Point second[3];
        path.elementAtIndex(0, first);
        if (path.elementAtIndex(1, second) == PathElementType::ClosePath) second[0] = first[0];
        return {first[0], Slope(first[0], second[0])};
    }
    const std::vector<Piece> pieces = piecesOf(plainlyTrimmed(path, length, 0.1F));
    if (pieces.size() < 2) return {{}, 1.0F};
    const Point* s = pieces.back().segment;
    return {s[3], Slope(pieces.back().type == PathElementType::CurveTo ? s[2] : s[0], s[3])};
}

}  // namespace

TEST_CASE("a segment splits into two that meet on the curve") {
    testing::RandomPlane random(5);
    for (int i = 0; i < 1000; ++i) {
        Point segment[4];
        for (Point& point : segment) point = random.point(100);
        const auto t = static_cast<float>(random.number(0, 1));
        const double s = 1 - static_cast<double>(t);
        const double w[] = {s * s * s, 3 * s * s * t, 3 * s * t * t,
                            static_cast<double>(t) * t * t};
        Point left[4], right[4];
        subdivideBezierAtT(segment, left, right, t);
        REQUIRE(left[0] == segment[0]);
        REQUIRE(right[3] == segment[3]);
        REQUIRE(left[3] == right[0]);
        REQUIRE(left[3].x == doctest::Approx(w[0] * segment[0].x + w[1] * segment[1].x +
                                             w[2] * segment[2].x + w[3] * segment[3].x));
        REQUIRE(left[3].y == doctest::Approx(w[0] * segment[0].y + w[1] * segment[1].y +
                                             w[2] * segment[2].y + w[3] * segment[3].y));
        subdivideBezierAtT(segment, segment, nullptr, t);
        REQUIRE(std::equal(segment, segment + 4, left));
    }
    CHECK(Slope({1, 1}, {1, 5}) == 1.5707964F);
    CHECK(Slope({1, 1}, {1, 1}) == 0);
}

TEST_CASE("the length of a segment is that of a plain reading of the rule") {
    testing::RandomPlane random(6);
    const double scales[] = {1e-3, 1, 100, 1e4};
    const float errors[] = {1e-3F, 0.1F, 10};
    for (int i = 0; i < 3000; ++i) {
        Point segment[4];
        const double scale = scales[random.below(4)];
        for (Point& point : segment) point = random.point(scale);
        if (i % 3 == 0) segment[1] = segment[0];
        const float maxError = errors[random.below(3)];
        REQUIRE(lengthOfBezier(segment, maxError) == plainLength(segment, maxError));
    }
    const Point straight[] = {{0, 0}, {1, 0}, {5, 0}, {10, 0}};
    CHECK(lengthOfBezier(straight, 0) == 10);
}

TEST_CASE("measuring ends, whatever the numbers and the bound are") {
    const double values[] = {0, 1, 100, -3, 1e9, 1e19, 3.4e38, 1e308, 5e-324, INFINITY, NAN};
    const float errors[] = {0.1F, 1e-6F, 0, -1, NAN, -INFINITY};
    testing::RandomPlane random(7);
    for (int i = 0; i < 300; ++i) {
        Point segment[4];
        bool isFinite = true;
        for (Point& point : segment) {
            point = {values[random.below(11)], values[random.below(i % 2 == 0 ? 4 : 11)]};
            isFinite = isFinite && std::abs(point.x) <= 1e9 && std::abs(point.y) <= 1e9;
        }
        const float length = lengthOfBezier(segment, errors[random.below(6)]);
        CHECK((length >= 0 || !isFinite));
        BezierPath path;
        path.moveToPoint(segment[0]);
        path.curveToPoint(segment[3], segment[1], segment[2]);
        path.closePath();
        CHECK(path.bezierPathByTrimmingToLength(static_cast<float>(values[random.below(11)]), 1e-3F)
                  .elementCount() <= 3);
        CHECK((path.pointOnPathAtLength(1) == path.pointOnPathAtLength(1) || !isFinite));
    }
}

TEST_CASE("a bound that cannot be reached is reached to within rounding") {
    testing::RandomPlane random(13);
    for (int i = 0; i < 20; ++i) {
        Point segment[4];
        for (Point& point : segment) point = random.point(100);
        const float length = lengthOfBezier(segment, 1e-4F);
        for (const float bound : {0.0F, -1.0F, NAN}) {
            CHECK(std::abs(lengthOfBezier(segment, bound) - length) < 1e-5F * length + 5e-3F);
        }
    }
}

TEST_CASE("lengths, cuts and ends are those of a plain reading of the rules") {
    testing::RandomPlane random(8);
    for (int i = 0; i < 600; ++i) {
        BezierPath path = testing::randomPath(random, random.below(i % 4 == 0 ? 120 : 12));
        if (i % 5 == 0) path.scaleBy(i % 25 == 0 ? 1e4 : 30);
        const std::vector<Piece> pieces = piecesOf(path);
        const float whole = plainLength(pieces);
        if (i % 2 == 0) REQUIRE(path.length() == whole);
        for (int k = 0; k < 6; ++k) {
            const auto length = static_cast<float>(k == 0 ? 0 : random.number(-0.1, 1.2) * whole);
            const float maxError = k % 2 == 0 ? 0.1F : 0.01F;
            if (length >= 0) {
                REQUIRE(path.bezierPathByTrimmingToLength(length, maxError) ==
                        plainlyTrimmed(path, length, maxError));
            }
            float slope = 7;
            const Point point = path.pointOnPathAtLength(length, &slope);
            const End expected = plainEnd(path, length);
            REQUIRE(point == expected.point);
            REQUIRE(slope == expected.slope.value_or(7));
            REQUIRE(path.pointOnPathAtLength(length) == point);
        }
        float total = 0;
        for (std::size_t k = 0; k < pieces.size(); ++k) {
            float own = -1;
            REQUIRE(path.lengthToSegment(k, &own) == total);
            REQUIRE(own == plainLength(pieces[k], 0.1F));
            total += own;
        }
        REQUIRE(path.length() == whole);
        float own = -1;
        CHECK(path.lengthToSegment(pieces.size(), &own) == 0);
        CHECK(own == 0);
    }
}

TEST_CASE("every change of a path is measured anew") {
    testing::RandomPlane random(9);
    for (const int count : {3, 40}) {
        BezierPath path = testing::randomPath(random, count);
        const auto isMeasured = [&] {
            BezierPath anew;
            for (const Piece& piece : piecesOf(path)) append(anew, piece);
            return path.length() == plainLength(piecesOf(path)) && path.bounds() == anew.bounds();
        };
        CHECK(isMeasured());
        path.scaleBy(2);
        CHECK(isMeasured());
        path.rotateByDegrees(10);
        CHECK(isMeasured());
        path.lineToPoint({1000, 1000});
        CHECK(isMeasured());
        const Point moved{-1000, 5};
        path.setAssociatedPoints(&moved, path.elementCount() - 1);
        CHECK(isMeasured());
        path.makeSureAllControlPointsAreNonIntegral();
        CHECK(isMeasured());
        BezierPath copy = path;
        copy.translateXBy(1e-3, 0);
        copy.closePath();
        CHECK(isMeasured());
        path = copy;
        CHECK(isMeasured());
        path.removeAllPoints();
        CHECK(path.length() == 0);
    }
}

TEST_CASE("trimming keeps this very path, or follows it") {
    const BezierPath line = BezierPath::bezierPathWithLineFromPoint({0, 0}, {100, 0});
    CHECK(line.bezierPathByTrimmingToLength(30) ==
          BezierPath::bezierPathWithLineFromPoint({0, 0}, {30, 0}));
    CHECK(line.bezierPathByTrimmingToLength(100) == line);
    CHECK(line.bezierPathByTrimmingToLength(NAN) == line);
    CHECK(line.bezierPathByTrimmingToLength(-10) ==
          BezierPath::bezierPathWithLineFromPoint({0, 0}, {-10, 0}));

    testing::RandomPlane random(10);
    BezierPath path = testing::randomPath(random, 50);
    path.setLineWidth(5);
    const BezierPath same = path.bezierPathByTrimmingToLength(1e9F);
    CHECK(same.isIdentical(path));
    CHECK(same.lineWidth() == 5);

    BezierPath triangle = BezierPath::bezierPathWithPointsArray({{0, 0}, {30, 0}, {30, 40}});
    triangle.closePath();
    float slope = 0;
    CHECK(triangle.pointOnPathAtLength(95, &slope) == Point{15, 20});
    CHECK(slope == Slope({30, 40}, {0, 0}));
    CHECK(triangle.bezierPathByTrimmingToLength(95).elementAtIndex(3) == PathElementType::LineTo);
    CHECK(triangle.pointOnPathAtLength(0, &slope) == Point{0, 0});
    CHECK(slope == 0);
}

}  // namespace QZCore
