#include <cmath>
#include <optional>

#include "QZCore/bezier.h"
#include "QZCore/geometry/distances.h"
#include "bezier/crossings.h"
#include "bezier/cubic_roots.h"
#include "bezier/stroke_hits.h"
#include "geometry/containment.h"
#include "support/path_pieces.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {
namespace {

using testing::Piece;
using testing::piecesOf;

// A plain reading of the rules.

struct PlainCrossing {
    double onSegment;
    double onLine;
};

std::optional<PlainCrossing> plainCrossing(Point s1, Point s2, Point q1, Point q2) {
    double dx = s2.x - s1.x, dy = s2.y - s1.y;
    const double ex = q2.x - q1.x, ey = q2.y - q1.y;
    if (std::abs(dx) < 0.001) {
        if (std::abs(dy) < 0.001 || std::abs(ex) < 0.001) return {};
        dx = 0;
    }
    if (std::abs(dy) < 0.001) {
        if (std::abs(ey) < 0.001) return {};
        dy = 0;
    }
    const double u = ((s1.x * dy - s1.y * dx) - (dy * q1.x - dx * q1.y)) / (ex * dy - ey * dx);
    if (u < -0.0001 || u > 1.0001) return {};
    const double s = dx != 0 ? (q1.x - s1.x + ex * u) / dx : (q1.y - s1.y + ey * u) / dy;
    if (!(s >= -0.0001 && s <= 1.0001)) return {};
    return PlainCrossing{s, u};
}

std::vector<PlainCrossing> plainCrossings(const Piece& piece, Point a, Point b) {
    const auto& [type, s] = piece;
    std::vector<PlainCrossing> crossings;
    if (type == PathElementType::CurveTo) {
        CrossingTimes lineTimes, times;
        const int count = curvedIntersection(
            lineTimes, times, parameterizeCurve(s[0], s[3], s[1], s[2]), parameterizeLine(a, b));
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
            crossings.push_back({times[i], lineTimes[i]});
        }
    } else if (type != PathElementType::MoveTo) {
        if (const auto crossing = plainCrossing(s[0], s[3], a, b)) crossings.push_back(*crossing);
    }
    return crossings;
}

Rect boxOf(const Point* p) {
    Rect box{p[0], {}};
    for (int i = 0; i < 4; ++i) {
        const double right = std::max(rightOf(box), p[i].x);
        const double bottom = std::max(bottomOf(box), p[i].y);
        box.origin = {std::min(box.origin.x, p[i].x), std::min(box.origin.y, p[i].y)};
        box.size = {right - box.origin.x, bottom - box.origin.y};
    }
    return box;
}

void plainlyCross(const Point* a, const Point* b, double lineWidth, double low, double interval,
                  std::vector<float>& positions) {
    if (!overlap(boxOf(a), boxOf(b))) return;
    const HitRadius flat(lineWidth, 1);
    if (straightLineHit(b[0], b[3], b[1], nullptr, flat, nullptr) &&
        straightLineHit(b[0], b[3], b[2], nullptr, flat, nullptr)) {
        const Piece piece{PathElementType::CurveTo, {a[0], a[1], a[2], a[3]}};
        for (const PlainCrossing& crossing : plainCrossings(piece, b[0], b[3])) {
            positions.push_back(static_cast<float>(low + interval * crossing.onSegment));
        }
        return;
    }
    Point a1[4], a2[4], b1[4], b2[4];
    splitBezierCurveTo(a, a1, a2);
    splitBezierCurveTo(b, b1, b2);
    interval /= 2;
    plainlyCross(a1, b1, lineWidth, low, interval, positions);
    plainlyCross(a1, b2, lineWidth, low, interval, positions);
    plainlyCross(a2, b1, lineWidth, low + interval, interval, positions);
    plainlyCross(a2, b2, lineWidth, low + interval, interval, positions);
}

std::vector<float> plainlyCrossed(const BezierPath& path, const Piece& other) {
    std::vector<float> positions;
    const Point* s = other.segment;
    if (other.type == PathElementType::MoveTo) return positions;
    for (const Piece& piece : piecesOf(path)) {
        if (other.type != PathElementType::CurveTo) {
            for (const PlainCrossing& crossing : plainCrossings(piece, s[0], s[3])) {
                positions.push_back(static_cast<float>(crossing.onSegment));
            }
        } else if (piece.type == PathElementType::CurveTo) {
            plainlyCross(piece.segment, s, path.lineWidth(), 0, 1, positions);
        } else if (piece.type != PathElementType::MoveTo) {
            for (const auto& crossing : plainCrossings(other, piece.segment[0], piece.segment[3])) {
                positions.push_back(static_cast<float>(crossing.onLine));
            }
        }
    }
    return positions;
}

std::vector<float> plainlyCrossed(const BezierPath& path, const BezierPath& other) {
    std::vector<float> positions;
    if (hasArea(path.bounds()) && !overlap(path.bounds(), other.bounds())) return positions;
    const std::vector<Piece> pieces = piecesOf(other);
    if (pieces.empty() || pieces[0].type != PathElementType::MoveTo) return positions;
    for (const Piece& piece : pieces) {
        const std::vector<float> own = plainlyCrossed(path, piece);
        positions.insert(positions.end(), own.begin(), own.end());
    }
    return positions;
}

BezierPath anyPath(testing::RandomPlane& random, int kind) {
    BezierPath path = testing::randomPath(random, random.below(kind % 3 == 0 ? 200 : 12));
    if (kind % 5 == 0) path.scaleBy(0.1);
    const Point offset = random.point(100);
    if (kind % 4 == 0) path.translateXBy(offset.x, offset.y);
    if (kind % 7 == 0) path.setLineWidth(random.number(0, 20));
    return path;
}

}  // namespace

TEST_CASE("crossings are those of a plain reading of the rules") {
    testing::RandomPlane random(21);
    std::size_t crossings = 0;
    for (int i = 0; i < 400; ++i) {
        const BezierPath path = anyPath(random, i);
        const BezierPath other = anyPath(random, i + 1);
        const std::vector<float> expected = plainlyCrossed(path, other);
        REQUIRE(path.intersectionsWithPath(other) == expected);
        REQUIRE(path.intersectionWithPath(other) == !expected.empty());
        crossings += expected.size();
        for (int k = 0; k < 8; ++k) {
            const Piece line{PathElementType::LineTo,
                             {random.point(150), {}, {}, random.point(k % 2 == 0 ? 150 : 20)}};
            std::vector<float> positions;
            path.addIntersectionsWithLineStart(line.segment[0], line.segment[3], positions);
            REQUIRE(positions == plainlyCrossed(path, line));
            Point crossing;
            const bool isCrossed =
                path.intersectionWithLine(&crossing, line.segment[0], line.segment[3]);
            REQUIRE(isCrossed == !positions.empty());
            if (isCrossed) {
                CHECK(distanceBetweenPointAndLine(crossing, line.segment[0], line.segment[3],
                                                  nullptr) < 0.05);
            }
        }
    }
    CHECK(crossings > 10'000);
}

TEST_CASE("roots of cubics are where their factors say") {
    testing::RandomPlane random(23);
    for (int i = 0; i < 20'000; ++i) {
        const double r = random.number(-0.5, 1.5), s = random.number(-0.5, 1.5);
        const double far = random.number(2, i % 2 == 0 ? 3 : 1e9);
        // (t - r) (t - s) (1 - t / far)
        const double scale = std::pow(10, random.number(-6, 6));
        const CubicPolynomial f{-scale / far, scale * (1 + (r + s) / far),
                                scale * (-(r + s) - r * s / far), scale * r * s};
        const CubicRoots roots = rootsOf(f);
        if (std::abs(r - s) < 1e-3) continue;
        REQUIRE(roots.count >= 2);
        CHECK(std::abs(roots.t[0] - std::min(r, s)) < 1e-6);
        CHECK(std::abs(roots.t[1] - std::max(r, s)) < 1e-6);
    }
    struct Row {
        const char* why;
        CubicPolynomial f;
        int count;
    };
    const Row rows[] = {
        {"a line", {0, 0, 2, -1}, 1},
        {"a parabola", {0, 1, 0, -0.25}, 2},
        {"a parabola off", {0, 1, 0, 0.25}, 0},
        {"touching", {0, 4, -4, 1}, 1},
        {"a triple root", {1, -1.5, 0.75, -0.125}, 1},
        {"a double root", {1, -1, 0.25, 0}, 2},
        {"nothing", {0, 0, 0, 0}, 0},
        {"constant", {0, 0, 0, 1}, 0},
        {"not a number", {1, NAN, 0, 0}, 0},
        {"infinite", {INFINITY, 0, 0, 1}, 0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(rootsOf(row.f).count == row.count);
    }
}

TEST_CASE("a curve of a lower degree is crossed like what it is") {
    testing::RandomPlane random(24);
    for (int i = 0; i < 2000; ++i) {
        const Point p = random.point(100), q = random.point(100), r = random.point(100);
        const auto mixed = [](Point a, Point b, double t) {
            return Point{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
        };
        BezierPath raised;  // the quadratic p, q, r
        raised.moveToPoint(p);
        raised.curveToPoint(r, mixed(p, q, 2.0 / 3), mixed(r, q, 2.0 / 3));
        const double t = random.number(0.05, 0.95);
        const Point on = mixed(mixed(p, q, t), mixed(q, r, t), t);
        const Point away = random.point(1);
        std::vector<float> positions;
        raised.addIntersectionsWithLineStart({on.x - away.x, on.y - away.y},
                                             {on.x + away.x, on.y + away.y}, positions);
        REQUIRE_FALSE(positions.empty());
        bool isFound = false;
        for (const float position : positions) isFound = isFound || std::abs(position - t) < 1e-3;
        CHECK(isFound);
    }
}

TEST_CASE("what crosses") {
    struct Row {
        const char* why;
        Point a, b, c, d;
        bool crosses;
    };
    const Row rows[] = {
        {"a cross", {0, 0}, {10, 10}, {0, 10}, {10, 0}, true},
        {"touching at an end", {0, 0}, {10, 10}, {10, 10}, {20, 0}, true},
        {"parallel", {0, 0}, {10, 5}, {0, 1}, {10, 6}, false},
        {"the same line", {0, 0}, {10, 5}, {0, 0}, {10, 5}, false},
        {"apart", {0, 0}, {10, 10}, {20, 10}, {30, 0}, false},
        {"shorter than a thousandth", {0, 0}, {0.0009, 0.0009}, {-1, 0.0005}, {1, 0.0005}, false},
        {"not a number", {0, 0}, {NAN, 10}, {0, 10}, {10, 0}, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const BezierPath path = BezierPath::bezierPathWithLineFromPoint(row.a, row.b);
        CHECK(path.intersectionWithLine(nullptr, row.c, row.d) == row.crosses);
    }
    const BezierPath square = BezierPath::bezierPathWithRect({{0, 0}, {10, 10}});
    const BezierPath upright = BezierPath::bezierPathWithLineFromPoint({5, -5}, {5, 15});
    CHECK_FALSE(square.intersectionWithPath(upright));
    CHECK(upright.intersectionsWithPath(square) == std::vector<float>{0.25F, 0.75F});
    CHECK(upright.distanceFromPath(square) == 0);
}

TEST_CASE("curves that lie on each other, or far out, end") {
    BezierPath curve;
    curve.moveToPoint({0, 0});
    curve.curveToPoint({3, 2}, {1.5, 0}, {1.5, 2});
    for (const double scale : {1.0, 1e6, 1e12, 1e30, 1e308, static_cast<double>(NAN), 1e-300}) {
        CAPTURE(scale);
        BezierPath scaled = curve;
        scaled.scaleBy(scale);
        for (const double width : {1.0, -2.0, static_cast<double>(NAN)}) {
            scaled.setLineWidth(width);
            const bool isMet = scaled.intersectionWithPath(scaled);
            if (scale <= 1e12 && scale >= 1 && width == 1) CHECK(isMet);
        }
    }
    CHECK(curve.intersectionsWithPath(curve).size() < 1000);

    // Halving the larger one to what can be told apart takes more than a lifetime.
    BezierPath larger = curve;
    curve.scaleBy(1e38);
    larger.scaleBy(1e199);
    for (const double width : {1.0, 1e300}) {
        curve.setLineWidth(width);
        for (int i = 0; i < 500; ++i) CHECK_FALSE(curve.intersectionWithPath(larger));
    }
}

}  // namespace QZCore
