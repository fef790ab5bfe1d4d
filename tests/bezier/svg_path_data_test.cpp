#include "QZCore/bezier/svg_path_data.h"

#include <cmath>
#include <limits>

#include "QZCore/geometry/distances.h"
#include "support/comma_locale.h"
#include "support/exact_copy.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {
namespace {

String normalized(StringView data) {
    return svgPathData(readSvgPathData(testing::ExactCopy(data)).path);
}

/// Whether all curves of the path lie on the ellipse, to a thousandth of its size.
bool liesOnEllipse(const BezierPath& path, Point center, double radiusX, double radiusY) {
    for (float length = 0; length < static_cast<float>(path.length()); length += 1) {
        const Point p = path.pointOnPathAtLength(length);
        const double radius = std::hypot((p.x - center.x) / radiusX, (p.y - center.y) / radiusY);
        if (std::abs(radius - 1) > 1e-3) return false;
    }
    return true;
}

}  // namespace

TEST_CASE("what is written reads back, bit by bit, in any locale") {
    const testing::CommaLocale locale;
    testing::RandomPlane random(11);
    for (int i = 0; i < 2000; ++i) {
        BezierPath path;
        path.moveToPoint(random.point(1e3));
        for (int k = random.below(12); k > 0; --k) testing::appendRandomElement(path, random);
        for (std::size_t k = 0; i % 2 == 0 && k < path.elementCount(); ++k) {
            Point points[3];
            for (Point& p : points) {
                p = {std::ldexp(random.number(-1, 1), random.below(2090) - 1074), -0.0};
            }
            path.setAssociatedPoints(points, k);
        }
        const String data = svgPathData(path);
        CAPTURE(data);
        const SvgPathReading reading = readSvgPathData(data);
        REQUIRE(reading.path == path);
        REQUIRE(reading.length == data.size());
        REQUIRE(svgPathData(reading.path) == data);
    }
}

TEST_CASE("path data are read up to the first mistake") {
    struct Row {
        StringView data;
        StringView read;
        StringView rest = u"";
    };
    const Row rows[] = {
        {u"", u""},
        {u" \t\r\n\f", u""},
        {u"M1 2", u"M1,2"},
        {u" m 1 2 3 4 z l1 1 m1,1", u"M1,2 L4,6 Z L2,3 M3,4"},
        {u"M1,2,3,4L5,6 7 8", u"M1,2 L3,4 L5,6 L7,8"},
        {u"M1 1H5 6V7h-1 2v-.5 1", u"M1,1 L5,1 L6,1 L6,7 L5,7 L7,7 L7,6.5 L7,7.5"},
        {u"M.5.5-1-1+2+2e0 1e-3,1E+1", u"M0.5,0.5 L-1,-1 L2,2 L0.001,10"},
        {u"M1.e1 0", u"M10,0"},
        {u"M0 0C1 2 3 4 5 6c1 2 3 4 5 6", u"M0,0 C1,2 3,4 5,6 C6,8 8,10 10,12"},
        {u"M0 0C1 1 2 3 4 4S6 6 7 7s1 1 2 2", u"M0,0 C1,1 2,3 4,4 C6,5 6,6 7,7 C8,8 8,8 9,9"},
        {u"M1 1L2 2S6 6 7 7", u"M1,1 L2,2 C2,2 6,6 7,7"},
        {u"M0 0Q3 3 6 0T12 0t3 3", u"M0,0 C2,2 4,2 6,0 C8,-2 10,-2 12,0 C14,2 15,3 15,3"},
        {u"M0 0C0 0 3 3 3 3T6 6", u"M0,0 C0,0 3,3 3,3 C3,3 4,4 6,6"},
        {u"M0 0ZZM1 1M2 2", u"M0,0 Z Z M1,1 M2,2"},
        {u"M0 0a0 5 0 0 1 3 3A5 5 0 013 3A1-0 0 11.5.5", u"M0,0 L3,3 L0.5,0.5"},
        {u"none", u"", u"none"},
        {u"L1 1", u"", u"L1 1"},
        {u"M1", u"", u"M1"},
        {u"M,1 1", u"", u"M,1 1"},
        {u"M1 1 L2", u"M1,1", u"L2"},
        {u"M1 1 , L2 2", u"M1,1", u", L2 2"},
        {u"M1,,1", u"", u"M1,,1"},
        {u"M1 1L2 2 3 x", u"M1,1 L2,2", u"3 x"},
        {u"M1 1z1", u"M1,1 Z", u"1"},
        {u"M1 1L1e 1", u"M1,1", u"L1e 1"},
        {u"M1 1L+-1 1", u"M1,1", u"L+-1 1"},
        {u"M1 1Linf nan", u"M1,1", u"Linf nan"},
        {u"M1 1L1e999 1", u"M1,1", u"L1e999 1"},
        {u"M1 1L1e-999 1", u"M1,1 L0,1"},
        {u"M1e308 0l1e308 0", u"M1e+308,0", u"l1e308 0"},
        {u"M0 0A1 1 0 2 0 1 1", u"M0,0", u"A1 1 0 2 0 1 1"},
        {u"M1 1\u00A0L2 2", u"M1,1", u"\u00A0L2 2"},
        {u"M1 1L0.10000000000000000000000000000000000e1 2", u"M1,1 L1,2"},
        {u"M1 1L1234567890123456789012345678901e2 2", u"M1,1 L1.2345678901234569e+32,2"},
        {u"M1 1L1000000000000000000000000000000e-10 2", u"M1,1 L1e+20,2"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.data);
        CHECK(normalized(row.data) == row.read);
        CHECK(row.data.substr(readSvgPathData(row.data).length) == row.rest);
    }
}

TEST_CASE("arcs are the ones that are asked for") {
    struct Row {
        const char* why;
        StringView data;
        Point center;
        double radiusX;
        double radiusY;
        double length;
    };
    const double quarter = 15.70796;
    const Row rows[] = {
        {"small, growing", u"M10 0A10 10 0 0 1 0 10", {0, 0}, 10, 10, quarter},
        {"small, shrinking", u"M10 0A10 10 0 0 0 0 10", {10, 10}, 10, 10, quarter},
        {"large, growing", u"M10 0A10 10 0 1 1 0 10", {10, 10}, 10, 10, 3 * quarter},
        {"large, shrinking", u"M10 0A10 10 0 1 0 0 10", {0, 0}, 10, 10, 3 * quarter},
        {"signs of radii", u"M10 0A-10-10 0 0 1 0 10", {0, 0}, 10, 10, quarter},
        {"one sign", u"M10 0A-10 10 0 0 1 0 10", {0, 0}, 10, 10, quarter},
        {"too small", u"M-10 0a1 1 0 0 0 20 0", {0, 0}, 10, 10, 2 * quarter},
        {"a quarter of an ellipse", u"M20 0A20 10 0 0 1 0 10", {0, 0}, 20, 10, 24.221},
        {"rotated", u"M10 0A20 10 90 0 1 0 20", {0, 0}, 10, 20, 24.221},
        {"rotated back", u"M10 0A20 10 -270 0 1 0 20", {0, 0}, 10, 20, 24.221},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const BezierPath path = readSvgPathData(row.data).path;
        CHECK(path.length() == doctest::Approx(row.length).epsilon(0.002));
        CHECK(liesOnEllipse(path, row.center, row.radiusX, row.radiusY));
    }
    for (StringView data : {u"M0 0A1e200 1e200 0 0 1 1 1", u"M0 0A1e-200 1e-200 0 0 1 1 1",
                            u"M1.7e308 0A1 1 0 0 1 -1.7e308 1e308"}) {
        const BezierPath path = readSvgPathData(data).path;
        CHECK(path.elementAtIndex(1) == PathElementType::LineTo);
        CHECK(path.elementCount() == 2);
    }
}

TEST_CASE("paths that SVG cannot write are written as far as it can") {
    BezierPath path;
    CHECK(svgPathData(path).empty());
    path.lineToPoint({1, 2});
    path.closePath();
    path.curveToPoint({1, 2}, {3, 4}, {5, INFINITY});
    path.lineToPoint({1, 2});
    CHECK(svgPathData(path) == u"M0,0 L1,2 Z");
}

TEST_CASE("long data cost what they are long") {
    String data = u"M0 0L";
    for (int i = 0; i < 300000; ++i) data += u"1-1";
    CHECK(readSvgPathData(data).path.elementCount() == 150001);
    data = u"M0 0L" + String(1000000, u'1') + u" 1";
    CHECK(readSvgPathData(data).path.elementCount() == 1);
    data = u"M0 0L0." + String(1000000, u'1') + u" 1";
    CHECK(readSvgPathData(data).path.elementCount() == 2);
}

}  // namespace QZCore
