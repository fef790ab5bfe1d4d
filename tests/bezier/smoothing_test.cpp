#include <algorithm>
#include <cmath>

#include "QZCore/bezier.h"
#include "QZCore/geometry/distances.h"
#include "QZCore/geometry/rectangles.h"
#include "support/path_pieces.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {
namespace {

using testing::piecesOf;

float distanceToPath(Point point, const BezierPath& path) {
    float nearest = INFINITY;
    for (const auto& [type, s] : piecesOf(path.bezierPathByFlatteningPath())) {
        nearest = std::min(nearest, distanceBetweenPointAndLine(point, s[0], s[3], nullptr));
    }
    return nearest;
}

bool hasEnd(const BezierPath& path, Point point) {
    const auto pieces = piecesOf(path);
    return std::any_of(pieces.begin(), pieces.end(),
                       [&](const auto& piece) { return piece.segment[3] == point; });
}

/// A square of 100 with 20 points a side.
std::vector<Point> squarePoints() {
    std::vector<Point> points;
    for (int i = 0; i < 20; ++i) points.push_back({i * 5.0, 0});
    for (int i = 0; i < 20; ++i) points.push_back({100, i * 5.0});
    for (int i = 0; i < 20; ++i) points.push_back({100 - i * 5.0, 100});
    for (int i = 0; i < 20; ++i) points.push_back({0, 100 - i * 5.0});
    return points;
}

}  // namespace

TEST_CASE("a fit stays within the error, which is a square") {
    testing::RandomPlane random(31);
    for (const float error : {0.25F, 1.0F, 4.0F}) {
        std::vector<Point> stroke;
        for (int i = 0; i < 200; ++i) {
            stroke.push_back({i + random.number(-0.1, 0.1), 40 * std::sin(i * 0.05)});
        }
        const BezierPath fitted =
            curveFitPath(BezierPath::bezierPathWithPointsArray(stroke), error);
        REQUIRE(fitted.elementCount() > 1);
        CHECK(fitted.elementCount() < 40);
        CHECK(hasEnd(fitted, stroke.front()));
        CHECK(fitted.currentPoint() == stroke.back());
        for (const Point& point : stroke) {
            CHECK(distanceToPath(point, fitted) < std::sqrt(error) + 0.11F);
        }
    }
}

TEST_CASE("what cannot be fitted is empty, what is short stays") {
    testing::RandomPlane random(32);
    BezierPath line = BezierPath::bezierPathWithLineFromPoint({0, 0}, {3, 4});
    CHECK(curveFitPath(line, 1) == line);
    CHECK(curveFitPath(BezierPath(), 1).isEmpty());
    std::vector<Point> noise;
    for (int i = 0; i < 2000; ++i) noise.push_back(random.point(100));
    const BezierPath noisy = BezierPath::bezierPathWithPointsArray(noise);
    CHECK(curveFitPath(noisy, 0.01F).isEmpty());
    CHECK(curveFitPath(noisy, -1).isEmpty());
    CHECK(curveFitPath(noisy, NAN).isEmpty());
    line.lineToPoint({INFINITY, 0});
    CHECK(curveFitPath(line, 1).isEmpty());
    CHECK(
        curveFitPath(BezierPath::bezierPathWithPointsArray({{1, 1}, {1, 1}, {1, 1}}), 1).isEmpty());
}

TEST_CASE("runs between corners are fitted, corners and curves are kept") {
    BezierPath square = BezierPath::bezierPathWithPointsArray(squarePoints());
    square.closePath();
    square.setWindingRule(WindingRule::EvenOdd);
    const BezierPath fitted = smartCurveFitPath(square, 1, 0.5F);
    CHECK(fitted.windingRule() == WindingRule::EvenOdd);
    CHECK(fitted.elementCount() < 12);
    for (const Point& corner : {Point{0, 0}, {100, 0}, {100, 100}, {0, 100}}) {
        CHECK(hasEnd(fitted, corner));
    }
    CHECK(fitted.bounds().size.width == doctest::Approx(100));

    BezierPath wave;
    wave.moveToPoint({0, 0});
    for (int i = 1; i < 10; ++i) wave.lineToPoint({i * 10.0, i % 2 == 0 ? 0.0 : 1.0});
    wave.curveToPoint({200, 0}, {120, 50}, {150, -50});
    for (int i = 1; i < 10; ++i) wave.lineToPoint({200.0 + i * 10, 0});
    const BezierPath smooth = smartCurveFitPath(wave, 4, 3);
    CHECK(hasEnd(smooth, {90, 1}));
    Point p[3];
    bool hasCurve = false;
    for (std::size_t i = 0; i < smooth.elementCount(); ++i) {
        smooth.elementAtIndex(i, p);
        hasCurve = hasCurve || (p[0] == Point{120, 50} && p[2] == Point{200, 0});
    }
    CHECK(hasCurve);

    const BezierPath open =
        BezierPath::bezierPathWithPointsArray({{0, 0}, {5, 1}, {10, 3}, {9, 9}});
    CHECK(smartCurveFitPath(open, 1, 7).elementCount() == 1);  // the only run is dropped
    CHECK(smartCurveFitPath(BezierPath(), 1, 1).isEmpty());
}

TEST_CASE("a turn is the difference of two directions, as it comes out") {
    CHECK(AngleBetween({0, 0}, {1, 0}, {1, 1}) == -1.5707964F);
    CHECK(AngleBetween({0, 0}, {-1, 0.1}, {-2, -0.1}) > 5.9F);
    CHECK(AngleBetween({0, 0}, {0, 0}, {0, 0}) == 0);
}

TEST_CASE("appending leaves out an initial move-to only") {
    BezierPath path = BezierPath::bezierPathWithLineFromPoint({0, 0}, {1, 0});
    BezierPath source = BezierPath::bezierPathWithLineFromPoint({5, 5}, {6, 5});
    source.moveToPoint({7, 7});
    appendBezierPathRemovingInitialMoveToPoint(path, source);
    CHECK(path.elementCount() == 4);
    CHECK(path.elementAtIndex(2) == PathElementType::LineTo);
    CHECK(path.elementAtIndex(3) == PathElementType::MoveTo);
    appendBezierPathRemovingInitialMoveToPoint(path, path);
    CHECK(path.elementCount() == 7);
}

TEST_CASE("corners are rounded from 20 units away, but the last one") {
    BezierPath square =
        BezierPath::bezierPathWithPointsArray({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
    square.closePath();
    const auto smoothed = square.smoothedPathWithCornerRadius(5);
    REQUIRE(smoothed.has_value());
    CHECK(*smoothed == *square.smoothedPathWithCornerRadius(50));
    const auto pieces = piecesOf(*smoothed);
    const Point ends[] = {{0, 50},   {0, 20},   {20, 0},   {80, 0},  {100, 20},
                          {100, 80}, {80, 100}, {20, 100}, {0, 100}, {0, 50}};
    REQUIRE(pieces.size() == std::size(ends));
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        CHECK(distanceBetweenPoints(pieces[i].segment[3], ends[i]) < 1e-4F);
    }
    CHECK(pieces[2].segment[1] == Point{0, 0});
    CHECK_FALSE(BezierPath().smoothedPathWithCornerRadius(1).has_value());
    CHECK_FALSE(BezierPath::bezierPathWithPointsArray({{1, 1}}).smoothedPathWithCornerRadius(1));
    square.moveToPoint({500, 500});
    CHECK(*square.smoothedPathWithCornerRadius(1) == *smoothed);
    testing::RandomPlane random(33);
    for (int i = 0; i < 300; ++i) {
        const BezierPath path = testing::randomPath(random, random.below(6));
        const bool begins =
            path.elementCount() > 1 && path.elementAtIndex(0) == PathElementType::MoveTo;
        CHECK(path.smoothedPathWithCornerRadius(1).has_value() == begins);
    }
}

TEST_CASE("an inset scales about the centre") {
    testing::RandomPlane random(34);
    const BezierPath rect = BezierPath::bezierPathWithRect({{10, 20}, {100, 50}});
    CHECK(rect.insetPathBy(10).bounds() == Rect{{20, 30}, {80, 30}});
    CHECK(rect.insetPathBy(0).isEqual(rect));
    for (int i = 0; i < 200; ++i) {
        BezierPath path = BezierPath::bezierPathWithLineFromPoint({0, 0}, random.point(50));
        path.appendBezierPath(testing::randomPath(random, random.below(30)));
        const double inset = random.number(-20, 20);
        const Rect bounds = path.bounds();
        const Rect changed = path.insetPathBy(inset).bounds();
        if (bounds.size.width == 0 || bounds.size.height == 0) continue;
        CHECK(changed.size.width == doctest::Approx(std::abs(bounds.size.width - 2 * inset)));
        CHECK(distanceBetweenPoints(centerOfRect(changed), centerOfRect(bounds)) < 1e-3F);
    }
    const BezierPath level = BezierPath::bezierPathWithLineFromPoint({0, 5}, {100, 5});
    CHECK(level.insetPathBy(10).bounds() == Rect{{10, 5}, {80, 0}});
    const BezierPath point = BezierPath::bezierPathWithPointsArray({{3, 3}, {3, 3}});
    CHECK(point.insetPathBy(7) == point);
}

TEST_CASE("a smooth curve passes every point, without a break in its bend") {
    testing::RandomPlane random(35);
    for (int i = 0; i < 300; ++i) {
        std::vector<Point> points;
        for (int k = 0; k <= random.below(12); ++k) points.push_back(random.point(100));
        BezierPath path = BezierPath::bezierPathWithPointsArray(points);
        const bool isClosed = i % 2 == 0;
        if (isClosed) path.closePath();
        const BezierPath curved = BezierPath::bezierPathCurveFittingThroughPointsOnPath(path);
        auto pieces = piecesOf(curved);
        if (isClosed) {
            REQUIRE(pieces.back().type == PathElementType::ClosePath);
            pieces.pop_back();
            REQUIRE(pieces.back().segment[3] == points[0]);
        }
        for (std::size_t k = 0; k < points.size(); ++k) REQUIRE(pieces[k].segment[3] == points[k]);
        if (isClosed && points.size() > 2) pieces.push_back(pieces[1]);
        for (std::size_t k = 2; k < pieces.size(); ++k) {
            const Point* a = pieces[k - 1].segment;
            const Point* b = pieces[k].segment;
            REQUIRE(pieces[k].type == PathElementType::CurveTo);
            CHECK(b[1].x - b[0].x == doctest::Approx(a[3].x - a[2].x));
            CHECK(b[2].y - 2 * b[1].y + b[0].y == doctest::Approx(a[3].y - 2 * a[2].y + a[1].y));
        }
    }
    const BezierPath mixed = testing::randomPath(random, 60);
    const auto curved = piecesOf(BezierPath::bezierPathCurveFittingThroughPointsOnPath(mixed));
    std::size_t at = 0;
    for (const auto& piece : piecesOf(mixed)) {
        while (at < curved.size() && !(curved[at].segment[3] == piece.segment[3])) ++at;
    }
    CHECK(at < curved.size());
}

}  // namespace QZCore
