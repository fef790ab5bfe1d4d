#include <cmath>

#include "QZCore/bezier.h"
#include "QZCore/geometry.h"
#include "support/path_data.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {

TEST_CASE("corners are rounded as far as their lines allow") {
    const double k = 0.5522847498307936;  // the handles of a quarter circle
    struct Row {
        const char* why;
        StringView path;
        double radius;
        StringView rounded;
    };
    const Row rows[] = {
        {"no radius", u"M0 0H10V10", 0, u"M0 0H10V10"},
        {"a negative one", u"M0 0H10V10", -3, u"M0 0H10V10"},
        {"no number", u"M0 0H10V10", NAN, u"M0 0H10V10"},
        {"no corner", u"M0 0H10H20", 5, u"M0 0H10H20"},
        {"straight on, nearly", u"M0 0L0.1 0.3L0.3 0.9", 5, u"M0 0L0.1 0.3L0.3 0.9"},
        {"straight back", u"M0 0H10H5Z", 5, u"M0 0H10H5Z"},
        {"a point", u"M1 1Z M2 2", 5, u"M1 1Z M2 2"},
        {"nothing", u"", 5, u""},
        {"lines of no length", u"M0 0H0H10V0H10", 5, u"M0 0H10"},
        {"corners at curves", u"M0 0H9C9 4 4 9 0 9V0", 5, u"M0 0H9C9 4 4 9 0 9V0"},
        {"after a close-path", u"M0 0H9Z L5 5", 1, u"M0 0H9Z M0 0L5 5"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(testing::pathOf(row.path).bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(
                  row.radius) == testing::pathOf(row.rounded));
    }

    const auto hook = [&](double r) {
        BezierPath path;
        path.moveToPoint({0, 0});
        if (r < 10) path.lineToPoint({10 - r, 0});
        path.curveToPoint({10, r}, {10 - r + k * r, 0}, {10, r - k * r});
        if (r < 10) path.lineToPoint({10, 10});
        return path;
    };
    for (const double radius : {0.5, 4.0, 10.0, 1000.0}) {
        const BezierPath rounded =
            testing::pathOf(u"M0 0H10V10")
                .bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(radius);
        const std::vector<Point> expected = testing::pointsOf(hook(std::min(radius, 10.0)));
        const std::vector<Point> points = testing::pointsOf(rounded);
        REQUIRE(points.size() == expected.size());
        for (std::size_t i = 0; i < points.size(); ++i) {
            CHECK(distanceBetweenPoints(points[i], expected[i]) < 1e-6F);
        }
    }
    // A rectangle, with and without a line back to its start, becomes the rounded one.
    const BezierPath expected = BezierPath::bezierPathWithRoundRectInRect({{0, 0}, {40, 20}}, 5);
    for (StringView data : {u"M0 0H40V20H0Z", u"M0 0H40V20H0V0Z"}) {
        const BezierPath rounded =
            testing::pathOf(data).bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(5);
        CHECK(rounded.bounds() == expected.bounds());
        CHECK(rounded.length() == doctest::Approx(expected.length()));
        CHECK(rounded.elementAtIndex(rounded.elementCount() - 1) == PathElementType::ClosePath);
    }
    const BezierPath bent =
        BezierPath::bezierPathRoundedBentLinesFromPoint({0, 0}, {100, 50}, true, true, 10, 10, 8);
    CHECK(bent.length() == doctest::Approx(150 - 4 * 8 + 8 * 3.14159).epsilon(1e-3));
}

TEST_CASE("arcs in corners of any angle have the radius and touch both lines") {
    testing::RandomPlane random(21);
    for (int i = 0; i < 500; ++i) {
        const double turn = random.number(-3, 3);
        const Point apex = random.point(100);
        BezierPath corner;
        corner.moveToPoint({apex.x - 1000, apex.y});
        corner.lineToPoint(apex);
        corner.lineToPoint({apex.x + 1000 * std::cos(turn), apex.y + 1000 * std::sin(turn)});
        const double radius = random.number(1, 50);
        const BezierPath rounded =
            corner.bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(radius);
        const double reach = radius * std::tan(std::abs(turn) / 2);
        if (reach > 1000 || reach < 1e-6) continue;
        const Point center{apex.x - reach, apex.y + std::copysign(radius, turn)};
        const float arc = static_cast<float>(radius * std::abs(turn));
        for (float share = 0; share <= 1; share += 0.125F) {
            const Point p =
                rounded.pointOnPathAtLength(static_cast<float>(1000 - reach) + share * arc);
            CAPTURE(turn);
            REQUIRE(distanceBetweenPoints(p, center) == doctest::Approx(radius).epsilon(0.01));
        }
    }
}

}  // namespace QZCore
