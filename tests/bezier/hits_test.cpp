#include <cmath>

#include "QZCore/bezier.h"
#include "QZCore/geometry/distances.h"
#include "bezier/curve_records.h"
#include "bezier/segment_search.h"
#include "bezier/stroke_hits.h"
#include "support/path_pieces.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {
namespace {

using testing::Piece;

// A plain reading of the rules.

struct PlainHit {
    std::ptrdiff_t index = 0;
    float position = 0;
    float distance = 0;

    friend bool operator==(const PlainHit&, const PlainHit&) = default;
};

struct PlainStroke {
    double lineWidth;
    float padding;
    bool isNearest = padding == -1;

    bool hitsLine(Point a, Point b, Point p, PlainHit& hit) const {
        const auto half = static_cast<float>(lineWidth * 0.5);
        const double r = isNearest ? half : half + padding;
        const double dx = b.x - a.x, dy = b.y - a.y;
        const auto len = static_cast<float>(std::sqrt(dx * dx + dy * dy));
        if (len == 0) return false;
        const double ux = dx / len, uy = dy / len;
        const auto s = static_cast<float>((p.x - a.x) * ux + (p.y - a.y) * uy);
        const double fx = p.x - (a.x + s * ux), fy = p.y - (a.y + s * uy);
        hit.distance = static_cast<float>(fx * fx + fy * fy);
        if (!isNearest && !(hit.distance < r * r)) return false;
        hit.position = s / len;
        if (hit.position >= 0 && hit.position <= 1) return true;
        hit.position =
            distanceSquaredBetweenPoints(p, b) <= distanceSquaredBetweenPoints(p, a) ? 1 : 0;
        return false;
    }

    bool hitsCurve(const Point* s, Point p, PlainHit& hit) const {
        const double r = isNearest ? lineWidth / 2 : lineWidth / 2 + padding;
        const CurveRecord curve = parameterizeCurve(s[0], s[3], s[1], s[2]);
        const Point d0{s[0].x - p.x, s[0].y - p.y};
        const auto& [start, c, b, a] = curve;
        const auto dot = [](Point v, Point w) { return v.x * w.x + v.y * w.y; };
        const double k[] = {dot(d0, d0),
                            2 * dot(d0, c),
                            2 * dot(d0, b) + dot(c, c),
                            2 * (dot(d0, a) + dot(c, b)),
                            2 * dot(c, a) + dot(b, b),
                            2 * dot(b, a),
                            dot(a, a)};
        const auto clamped = [](double t) { return t > 0 ? std::min(t, 1.0) : 0; };
        double t =
            clamped(((p.x - std::min(s[0].x, s[3].x)) + (p.y - std::min(s[0].y, s[3].y))) /
                    (std::abs(s[3].y - s[0].y) + std::abs(s[0].x - p.x) + std::abs(s[3].x - p.x) +
                     std::abs(s[0].y - p.y) + std::abs(s[3].y - p.y)));
        double best = 100000;
        hit.distance = 0;
        for (int round = 1; round <= 12; ++round) {
            double d = k[6], slope = 6 * k[6];
            for (int i = 5; i >= 0; --i) d = d * t + k[i];
            for (int i = 5; i >= 1; --i) slope = slope * t + i * k[i];
            if (d < best) {
                best = d;
                hit.distance = static_cast<float>(d);
                hit.position = static_cast<float>(t);
            }
            if (round == 12 && (best <= r * r || isNearest)) return true;
            if ((t == 0 && d > 0) || (t == 1 && d < 0)) return best <= r * r;
            t = clamped(t - 0.75 * d / slope);
        }
        return false;
    }

    PlainHit search(const BezierPath& path, Point p) const {
        const auto pieces = testing::piecesOf(path, testing::Return::ToLastMoveAfterClose);
        if (pieces.empty() || pieces[0].type != PathElementType::MoveTo) return {};
        PlainHit best{-1};
        for (std::size_t i = 1; i < pieces.size(); ++i) {
            const auto& [type, s] = pieces[i];
            PlainHit hit{static_cast<std::ptrdiff_t>(i), 0, -1};
            Point first[3];
            path.elementAtIndex(i, first);
            if (type != PathElementType::ClosePath && first[0] == p) return {hit.index, 0, 0};
            if (type == PathElementType::MoveTo) continue;
            const bool isHit = type == PathElementType::CurveTo ? hitsCurve(s, p, hit)
                                                                : hitsLine(s[0], s[3], p, hit);
            if (isNearest ? hit.distance != -1 && (best.index == -1 || hit.distance < best.distance)
                          : isHit) {
                best = hit;
                if (!isNearest) return hit;
            }
        }
        return isNearest ? best : PlainHit();
    }
};

PlainHit found(const BezierPath& path, Point p, float padding) {
    PlainHit hit{-7, -7, -7};
    hit.index = segmentHitByPoint(path, p, &hit.position, padding, &hit.distance);
    return hit;
}

}  // namespace

TEST_CASE("hits are those of a plain reading of the rules") {
    testing::RandomPlane random(11);
    const double widths[] = {0, 0.5, 2, 12, 700};
    const float paddings[] = {0, 3, -1, -1, -2.5F, 0.1F};
    int hits = 0;
    for (int i = 0; i < 1500; ++i) {
        BezierPath path = testing::randomPath(random, random.below(i % 3 == 0 ? 300 : 12));
        if (i % 5 == 0) path.scaleBy(i % 2 == 0 ? 30 : 1e-3);
        path.setLineWidth(widths[random.below(5)]);
        for (int k = 0; k < 12; ++k) {
            Point p = random.point(120);
            if (k % 3 == 0) p = {random.below(5) * 10.0, random.below(5) * 10.0};
            if (k % 3 == 1) {
                p = path.pointOnPathAtPosition(random.number(0, 1));
                p.x += random.number(-2, 2);
            }
            const float padding = paddings[random.below(6)];
            const PlainHit expected = PlainStroke{path.lineWidth(), padding}.search(path, p);
            REQUIRE(found(path, p, padding) == expected);
            REQUIRE(path.strokeContainsPoint(p, padding) == (expected.index != 0));
            hits += expected.index > 0 && padding != -1;

            float own = 0;
            const double before =
                path.lengthToSegment(static_cast<std::size_t>(expected.index), &own);
            const double share =
                path.length() > 0
                    ? (before + static_cast<double>(expected.position) * own) / path.length()
                    : 0;
            REQUIRE(path.positionOfNearbyPoint(p, padding) == share);
            REQUIRE(path.pointOnPathNearbyPoint(p, padding) == path.pointOnPathAtPosition(share));
        }
    }
    CHECK(hits > 2000);
}

TEST_CASE("where a line is hit") {
    struct Row {
        const char* why;
        Point point;
        float padding;
        PlainHit hit;
    };
    const Row rows[] = {
        {"within half the line width", {5, 0.9}, 0, {1, 0.5F, 0.81F}},
        {"exactly at its rim", {5, 1}, 0, {0, 0, 0}},
        {"with padding", {5, 1}, 0.5F, {1, 0.5F, 1}},
        {"beyond the end", {12, 0}, 0, {0, 0, 0}},
        {"nearest: beyond the end of an endless line", {14, 3}, -1, {1, 1, 9}},
        {"nearest: before its start", {-4, 3}, -1, {1, 0, 9}},
        {"at its very end", {10, 0}, 0, {1, 0, 0}},
        {"not a number", {NAN, 0}, 0, {0, 0, 0}},
    };
    BezierPath line = BezierPath::bezierPathWithLineFromPoint({0, 0}, {10, 0});
    line.setLineWidth(2);
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(found(line, row.point, row.padding) == row.hit);
    }
    float position = 7;
    float distance = 7;
    const HitRadius radius(2, 0);
    CHECK_FALSE(straightLineHit({0, 0}, {10, 0}, {12, 0}, &position, radius, &distance));
    CHECK(position == 1);
    CHECK(distance == 0);
    CHECK_FALSE(straightLineHit({1, 1}, {1, 1}, {1, 1}, &position, radius, &distance));
    CHECK(position == 1);
}

TEST_CASE("what has no strokes is not hit") {
    BezierPath path;
    CHECK_FALSE(path.strokeContainsPoint({0, 0}, 100));
    CHECK(path.segmentNearPoint({0, 0}, -1) == 0);
    CHECK(path.positionOfNearbyPoint({0, 0}, 1) == 0);
    path.moveToPoint({3, 3});
    CHECK_FALSE(path.strokeContainsPoint({3, 3}, 100));
    CHECK(path.segmentNearPoint({3, 3}, -1) == -1);
    path.closePath();
    CHECK(path.segmentNearPoint({9, 9}, -1) == -1);
    path.moveToPoint({4, 4});
    CHECK(path.segmentNearPoint({4, 4}, 0) == 2);
    BezierPath headless;
    headless.lineToPoint({10, 0});
    CHECK_FALSE(headless.strokeContainsPoint({5, 0}, 1));
    BezierPath far;  // rounding makes the square of the distance -1
    far.moveToPoint({-6e6, 6.9e7});
    far.curveToPoint({1.02e8, -1.25e8}, {-1.16e8, -7.9e7}, {1.53e8, -2.8e7});
    CHECK(found(far, {-32510009.765625, 4450927.734375}, -1).index == 1);
    BezierPath loop;
    loop.moveToPoint({3, 3});
    loop.curveToPoint({3, 3}, {9, 3}, {3, 9});
    CHECK(loop.strokeContainsPoint({3, 3}, 0));
}

TEST_CASE("every change of a path is asked anew") {
    testing::RandomPlane random(12);
    BezierPath path = testing::randomPath(random, 200);
    for (int i = 0; i < 300; ++i) {
        const BezierPath copy = path;
        const Point far{1000.0 + i, 1000};
        CHECK(path.segmentNearPoint(far, 0) == 0);
        if (i % 3 == 0) path.lineToPoint(far);
        if (i % 3 == 1) path.setAssociatedPoints(&far, path.elementCount() - 1);
        if (i % 3 == 2)
            path.translateXBy(far.x - path.currentPoint().x, 1000 - path.currentPoint().y);
        CHECK(path.segmentNearPoint(far, 0) > 0);
        CHECK(copy.segmentNearPoint(far, 0) == 0);
    }
}

}  // namespace QZCore
