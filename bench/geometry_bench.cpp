// Points and rectangles, beside what Qt, lib2geom and cairo offer for the same.
#include <2geom/convex-hull.h>
#include <2geom/line.h>
#include <2geom/transforms.h>
#include <benchmark/benchmark.h>
#include <cairo.h>

#include <QLineF>
#include <QPolygonF>
#include <QTransform>
#include <cmath>
#include <cstdlib>
#include <random>
#include <vector>

#include "QZCore/geometry.h"

namespace {

using QZCore::Point;
using QZCore::Rect;

constexpr std::size_t kItems = 4096;

class Random {
public:
    double number(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(engine_);
    }
    Point point(double reach) {
        const double x = number(-reach, reach);
        return {x, number(-reach, reach)};
    }

private:
    std::mt19937_64 engine_{1};
};

std::vector<Point> pointsInDisc(std::size_t count) {
    Random random;
    std::vector<Point> points;
    while (points.size() < count) {
        const Point point = random.point(1000);
        if (point.x * point.x + point.y * point.y < 1e6) points.push_back(point);
    }
    return points;
}

std::vector<Point> pointsOnGrid(std::size_t count) {
    std::vector<Point> points = pointsInDisc(count);
    for (Point& point : points) point = {std::floor(point.x), std::floor(point.y)};
    return points;
}

std::vector<Point> pointsOnCircle(std::size_t count) {
    Random random;
    std::vector<Point> points(count);
    for (Point& point : points) {
        const double angle = random.number(0, 6.283);
        point = {1000 * std::cos(angle), 1000 * std::sin(angle)};
    }
    return points;
}

// ---- Hulls ------------------------------------------------------------------

using MakePoints = std::vector<Point> (*)(std::size_t);

void hull(benchmark::State& state, MakePoints make) {
    const std::vector<Point> points = make(static_cast<std::size_t>(state.range(0)));
    std::vector<Point> sorted(points.size());
    for (auto _ : state) {
        std::copy(points.begin(), points.end(), sorted.begin());
        std::int32_t* indices = nullptr;
        const auto count = static_cast<std::int32_t>(sorted.size());
        benchmark::DoNotOptimize(QZCore::convexHull(sorted.data(), count, &indices));
        std::free(indices);
    }
}

void hullBy2geom(benchmark::State& state, MakePoints make) {
    std::vector<Geom::Point> points;
    for (const Point& point : make(static_cast<std::size_t>(state.range(0)))) {
        points.emplace_back(point.x, point.y);
    }
    for (auto _ : state) benchmark::DoNotOptimize(Geom::ConvexHull(points));
}

#define HULLS(shape, points)                      \
    BENCHMARK_CAPTURE(hull, shape, points)        \
        ->Name("hull " #shape "/QZCore")          \
        ->RangeMultiplier(10)                     \
        ->Range(10, 1'000'000);                   \
    BENCHMARK_CAPTURE(hullBy2geom, shape, points) \
        ->Name("hull " #shape "/lib2geom")        \
        ->RangeMultiplier(10)                     \
        ->Range(10, 1'000'000)
HULLS(disc, pointsInDisc);
HULLS(grid, pointsOnGrid);
HULLS(circle, pointsOnCircle);

// ---- Selection --------------------------------------------------------------

struct Figure {
    Rect frame;
    float angle;
};

/// Figures all over a board of 8,000 by 8,000, most of them rotated.
std::vector<Figure> figures() {
    Random random;
    std::vector<Figure> made;
    for (std::size_t i = 0; i < kItems; ++i) {
        const Rect frame{random.point(4000), {random.number(20, 200), random.number(20, 200)}};
        made.push_back({frame, i % 4 == 0 ? 0 : static_cast<float>(random.number(-3, 3))});
    }
    return made;
}

constexpr Rect kRubberBand{{-700, -600}, {1500, 1100}};

template <class Items, class Work>
void measure(benchmark::State& state, const Items& items, Work work) {
    for (auto _ : state) {
        for (const auto& item : items) benchmark::DoNotOptimize(work(item));
    }
    state.counters["per_item"] = benchmark::Counter(
        static_cast<double>(items.size()),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void select(benchmark::State& state) {
    measure(state, figures(), [](const Figure& figure) {
        return QZCore::selectionRectIncludesRotatedRect(kRubberBand, figure.frame, figure.angle,
                                                        QZCore::centerOfRect(figure.frame), false);
    });
}
BENCHMARK(select)->Name("select 4096 figures/QZCore");

void selectByQt(benchmark::State& state) {
    const QRectF band(-700, -600, 1500, 1100);
    measure(state, figures(), [&](const Figure& figure) {
        const auto [origin, size] = figure.frame;
        const QPointF center(origin.x + size.width / 2, origin.y + size.height / 2);
        QTransform turn = QTransform::fromTranslate(center.x(), center.y());
        turn.rotateRadians(static_cast<double>(figure.angle));
        const QRectF frame(-size.width / 2, -size.height / 2, size.width, size.height);
        return turn.map(QPolygonF(frame)).intersects(QPolygonF(band));
    });
}
BENCHMARK(selectByQt)->Name("select 4096 figures/Qt");

// ---- Segments and rotation ------------------------------------------------------

struct Segments {
    Point a1, a2, b1, b2;
};

std::vector<Segments> segments() {
    Random random;
    std::vector<Segments> made(kItems);
    for (Segments& each : made) {
        each = {random.point(100), random.point(100), random.point(100), random.point(100)};
    }
    return made;
}

void intersect(benchmark::State& state) {
    measure(state, segments(), [](const Segments& each) {
        Point crossing;
        QZCore::intersectionOfLineSegments(&crossing, each.a1, each.a2, each.b1, each.b2);
        return crossing;
    });
}
BENCHMARK(intersect)->Name("4096 segment pairs/QZCore");

void intersectByQt(benchmark::State& state) {
    std::vector<std::pair<QLineF, QLineF>> pairs;
    for (const Segments& each : segments()) {
        pairs.emplace_back(QLineF(each.a1.x, each.a1.y, each.a2.x, each.a2.y),
                           QLineF(each.b1.x, each.b1.y, each.b2.x, each.b2.y));
    }
    measure(state, pairs, [](const auto& pair) {
        QPointF crossing;
        return pair.first.intersects(pair.second, &crossing) == QLineF::BoundedIntersection
                   ? crossing.x()
                   : 0;
    });
}
BENCHMARK(intersectByQt)->Name("4096 segment pairs/Qt");

void intersectBy2geom(benchmark::State& state) {
    const auto line = [](Point a, Point b) {
        return Geom::LineSegment(Geom::Point(a.x, a.y), Geom::Point(b.x, b.y));
    };
    std::vector<std::pair<Geom::LineSegment, Geom::LineSegment>> pairs;
    for (const Segments& each : segments()) {
        pairs.emplace_back(line(each.a1, each.a2), line(each.b1, each.b2));
    }
    measure(state, pairs,
            [](const auto& pair) { return pair.first.intersect(pair.second).size(); });
}
BENCHMARK(intersectBy2geom)->Name("4096 segment pairs/lib2geom");

void rotate(benchmark::State& state) {
    const std::vector<Point> points = pointsInDisc(kItems);
    measure(state, points, [](Point point) {
        return QZCore::rotatePointAroundPoint(point, {10, 20}, 0.5F);
    });
}
BENCHMARK(rotate)->Name("rotate 4096 points/QZCore");

void rotateByCairo(benchmark::State& state) {
    cairo_matrix_t matrix;
    cairo_matrix_init_translate(&matrix, 10, 20);
    cairo_matrix_rotate(&matrix, 0.5);
    cairo_matrix_translate(&matrix, -10, -20);
    measure(state, pointsInDisc(kItems), [&](Point point) {
        cairo_matrix_transform_point(&matrix, &point.x, &point.y);
        return point;
    });
}
BENCHMARK(rotateByCairo)->Name("rotate 4096 points/cairo");

}  // namespace
