#include <cmath>
#include <numbers>
#include <thread>
#include <utility>

#include "QZCore/bezier.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {
namespace {

/// A path as plain elements.
struct Element {
    PathElementType type;
    std::vector<Point> points;

    friend bool operator==(const Element&, const Element&) = default;
};

std::vector<Element> elementsOf(const BezierPath& path) {
    std::vector<Element> elements;
    for (std::size_t i = 0; i < path.elementCount(); ++i) {
        Point points[3];
        const PathElementType type = path.elementAtIndex(i, points);
        elements.push_back({type, {points, points + detail::pointCountOf(type)}});
    }
    return elements;
}

Point currentPointOf(const std::vector<Element>& elements) {
    Point current;
    Point start;
    for (const Element& element : elements) {
        current = element.points.empty() ? start : element.points.back();
        if (element.type == PathElementType::MoveTo) start = current;
    }
    return current;
}

}  // namespace

TEST_CASE("paths are values: changing one changes no copy of it") {
    testing::RandomPlane random(1);
    std::vector<BezierPath> paths(6);
    std::vector<std::vector<Element>> twins(6);
    for (int i = 0; i < 20'000; ++i) {
        const auto which = static_cast<std::size_t>(random.below(6));
        const auto other = static_cast<std::size_t>(random.below(6));
        BezierPath& path = paths[which];
        const int action = random.below(40);
        if (action == 0) {
            path = paths[other];
            twins[which] = twins[other];
        } else if (action == 1) {
            path = BezierPath(std::move(paths[other]));
            if (other != which) CHECK(paths[other].isEmpty());
            twins[which] = std::exchange(twins[other], {});
            if (other == which) twins[which] = elementsOf(path);
        } else if (action == 2) {
            path.removeAllPoints();
            twins[which].clear();
        } else if (action == 3 && path.elementCount() + paths[other].elementCount() < 100) {
            path.appendBezierPath(paths[other]);
            const std::vector<Element> appended = twins[other];
            twins[which].insert(twins[which].end(), appended.begin(), appended.end());
        } else if (action < 10) {
            const Point points[] = {random.point(9), random.point(9), random.point(9)};
            const std::size_t index = random.bits() % (path.elementCount() + 2);
            path.setAssociatedPoints(points, index);
            if (index < twins[which].size()) {
                auto& changed = twins[which][index].points;
                changed.assign(points, points + changed.size());
            }
        } else {
            testing::appendRandomElement(path, random);
            twins[which] = elementsOf(path);
        }
        REQUIRE(elementsOf(path) == twins[which]);
        REQUIRE(path.currentPoint() == currentPointOf(twins[which]));
        REQUIRE(path.isEqual(paths[other]) == (twins[which] == twins[other]));
        if (path == paths[other]) REQUIRE(path.hash() == paths[other].hash());
        if (path == paths[other]) REQUIRE(path.length() == paths[other].length());
    }
}

TEST_CASE("equality looks at elements only, and exactly") {
    BezierPath path = BezierPath::bezierPathWithLineFromPoint({1, 2}, {3, 4});
    BezierPath wide = path;
    wide.setLineWidth(7);
    wide.setWindingRule(WindingRule::EvenOdd);
    wide.setLineDash({1, 2}, 3);
    CHECK(path == wide);
    CHECK(path.hash() == wide.hash());
    CHECK(BezierPath() == BezierPath());
    CHECK_FALSE(path == BezierPath());
    CHECK_FALSE(path == BezierPath::bezierPathWithLineFromPoint({1, 2}, {3, std::nextafter(4, 5)}));

    BezierPath nowhere;
    nowhere.moveToPoint({NAN, 0});
    CHECK(nowhere.isEqual(nowhere));
    CHECK_FALSE(nowhere.isEqual(BezierPath(nowhere)));
    Point points[3];
    CHECK(path.elementAtIndex(2, points) == PathElementType::ClosePath);
    CHECK(points[0] == Point());
    path.setAssociatedPoints(nullptr, 0);
    path.setAssociatedPoints(points, SIZE_MAX);
    CHECK(path == wide);
}

TEST_CASE("the hash mixes types and leading digits") {
    struct Row {
        const char* why;
        Point point;
        std::uint32_t digit;
    };
    const Row rows[] = {
        {"12.5", {12, 0.5}, 1},
        {"signs do not count", {-12, -0.5}, 1},
        {"zero", {0, -0.0}, 0},
        {"8 has three bits", {8, 0}, 0},
        {"9 too", {0, 9.5}, 1},
        {"a power of ten", {1000, 0}, 1},
        {"just below one, as a double", {999.99999999, 0}, 1},
        {"a fraction", {0.00075, 0}, 7},
        {"the smallest float", {1e-45, 0}, 1},
        {"beneath the floats", {1e-46, 0}, 0},
        {"beyond the floats", {3e38, 3e38}, 0},
        {"not a number", {NAN, 1}, 0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        BezierPath path;
        path.moveToPoint(row.point);
        CHECK(path.hash() == row.digit);
        path.closePath();
        CHECK(path.hash() == ((row.digit << 2) ^ 3));
    }
    BezierPath path;
    CHECK(path.hash() == 0);
    path.moveToPoint({12, 0.5});
    path.lineToPoint({300, 0});
    CHECK(path.hash() == ((1U << 5) ^ 3 ^ 8));
    path.curveToPoint({7, 0}, {5, 0}, {6, 0});
    CHECK(path.hash() == ((((((43U << 5) ^ 5) << 3) ^ 6) << 3) ^ 7 ^ 0x400));
}

TEST_CASE("different threads measure the same path at once") {
    testing::RandomPlane random(2);
    const BezierPath path = testing::randomPath(random, 500);
    const BezierPath copy = path;
    BezierPath built;
    built.appendBezierPath(path);
    std::vector<double> lengths(8);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        threads.emplace_back([&, i] { lengths[i] = (i % 2 == 0 ? path : copy).length(); });
    }
    for (std::thread& thread : threads) thread.join();
    for (const double length : lengths) CHECK(length == built.length());
}

}  // namespace QZCore
