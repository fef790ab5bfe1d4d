// Measuring paths, beside Qt's, lib2geom's and cairo's paths.
#include <2geom/path.h>
#include <2geom/sbasis-geometric.h>
#include <benchmark/benchmark.h>
#include <cairo.h>

#include <QPainterPath>
#include <cmath>
#include <random>

#include "QZCore/bezier.h"

namespace {

using QZCore::BezierPath;
using QZCore::PathElementType;
using QZCore::Point;

/// A connecting line: one curve.
BezierPath rope() {
    BezierPath path;
    path.moveToPoint({0, 0});
    path.curveToPoint({300, 200}, {150, 0}, {150, 200});
    return path;
}

/// A closed outline of `count` curves around a circle.
BezierPath outline(std::size_t count) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> wobble(0.9, 1.1);
    const auto place = [&](double angle, double radius) {
        return Point{500 + radius * std::cos(angle), 500 + radius * std::sin(angle)};
    };
    const double step = 2 * 3.141592653589793 / static_cast<double>(count);
    BezierPath path;
    path.moveToPoint(place(0, 400));
    for (std::size_t i = 0; i < count; ++i) {
        const double angle = step * static_cast<double>(i);
        const Point control1 = place(angle + step / 3, 400 * wobble(random));
        const Point control2 = place(angle + 2 * step / 3, 400 * wobble(random));
        path.curveToPoint(place(angle + step, 400), control1, control2);
    }
    path.closePath();
    return path;
}

BezierPath pathOf(const benchmark::State& state) {
    return state.range(0) == 1 ? rope() : outline(static_cast<std::size_t>(state.range(0)));
}

/// Calls a builder of another library for each element.
template <class Move, class Curve>
void rebuild(const BezierPath& path, Move move, Curve curve) {
    for (std::size_t i = 0; i < path.elementCount(); ++i) {
        Point p[3];
        const PathElementType type = path.elementAtIndex(i, p);
        if (type == PathElementType::MoveTo) move(p[0]);
        if (type == PathElementType::CurveTo) curve(p[0], p[1], p[2]);
    }
}

QPainterPath qtPath(const BezierPath& path) {
    QPainterPath made;
    rebuild(
        path, [&](Point p) { made.moveTo(p.x, p.y); },
        [&](Point a, Point b, Point c) { made.cubicTo(a.x, a.y, b.x, b.y, c.x, c.y); });
    return made;
}

Geom::Path geomPath(const BezierPath& path) {
    Geom::Path made;
    rebuild(
        path, [&](Point p) { made.start(Geom::Point(p.x, p.y)); },
        [&](Point a, Point b, Point c) {
            made.appendNew<Geom::CubicBezier>(Geom::Point(a.x, a.y), Geom::Point(b.x, b.y),
                                              Geom::Point(c.x, c.y));
        });
    return made;
}

double geomLength(const Geom::Path& path) {
    double length = 0;
    for (const Geom::Curve& curve : path) length += curve.length(0.1);
    return length;
}

template <class Work>
void repeat(benchmark::State& state, Work work) {
    for (auto _ : state) benchmark::DoNotOptimize(work());
}

void sizes(benchmark::internal::Benchmark* job) { job->Arg(1)->Arg(64)->Arg(4096); }

void length(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    repeat(state, [&] { return path.length(); });
}
BENCHMARK(length)->Name("length again/QZCore")->Apply(sizes);

void lengthCold(benchmark::State& state) {
    BezierPath path = pathOf(state);
    Point first = path.currentPoint();
    path.elementAtIndex(0, &first);
    repeat(state, [&] {
        path.setAssociatedPoints(&first, 0);  // which forgets what was measured
        return path.length();
    });
}
BENCHMARK(lengthCold)->Name("length/QZCore")->Apply(sizes);

void lengthByQt(benchmark::State& state) {
    const QPainterPath path = qtPath(pathOf(state));
    repeat(state, [&] { return path.length(); });
}
BENCHMARK(lengthByQt)->Name("length/Qt")->Apply(sizes);

void lengthBy2geom(benchmark::State& state) {
    const Geom::Path path = geomPath(pathOf(state));
    repeat(state, [&] { return geomLength(path); });
}
BENCHMARK(lengthBy2geom)->Name("length/lib2geom")->Apply(sizes);

void pointAt(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    float share = 0;
    repeat(state, [&] {
        share = share > 0.9F ? 0.05F : share + 0.037F;
        return path.pointOnPathAtLength(share * static_cast<float>(path.length()));
    });
}
BENCHMARK(pointAt)->Name("point at length/QZCore")->Apply(sizes);

void pointAtByQt(benchmark::State& state) {
    const QPainterPath path = qtPath(pathOf(state));
    const double length = path.length();
    double share = 0;
    repeat(state, [&] {
        share = share > 0.9 ? 0.05 : share + 0.037;
        return path.pointAtPercent(path.percentAtLength(share * length));
    });
}
BENCHMARK(pointAtByQt)->Name("point at length/Qt")->Apply(sizes);

void bounds(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    repeat(state, [&] { return path.bounds(); });
}
BENCHMARK(bounds)->Name("bounds/QZCore")->Apply(sizes);

void boundsBy2geom(benchmark::State& state) {
    const Geom::Path path = geomPath(pathOf(state));
    repeat(state, [&] { return path.boundsExact(); });
}
BENCHMARK(boundsBy2geom)->Name("bounds/lib2geom")->Apply(sizes);

void boundsByCairo(benchmark::State& state) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1);
    cairo_t* context = cairo_create(surface);
    rebuild(
        pathOf(state), [&](Point p) { cairo_move_to(context, p.x, p.y); },
        [&](Point a, Point b, Point c) { cairo_curve_to(context, a.x, a.y, b.x, b.y, c.x, c.y); });
    repeat(state, [&] {
        double box[4];
        cairo_path_extents(context, box, box + 1, box + 2, box + 3);
        return box[0] + box[3];
    });
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}
BENCHMARK(boundsByCairo)->Name("bounds/cairo")->Apply(sizes);

void build(benchmark::State& state) {
    repeat(state, [&] { return pathOf(state); });
}
BENCHMARK(build)->Name("build a rope/QZCore")->Arg(1);

void buildByQt(benchmark::State& state) {
    repeat(state, [] {
        QPainterPath path;
        path.moveTo(0, 0);
        path.cubicTo(150, 0, 150, 200, 300, 200);
        return path;
    });
}
BENCHMARK(buildByQt)->Name("build a rope/Qt")->Arg(1);

void copy(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    repeat(state, [&] { return path; });
}
BENCHMARK(copy)->Name("copy/QZCore")->Apply(sizes);

void copyByQt(benchmark::State& state) {
    const QPainterPath path = qtPath(pathOf(state));
    repeat(state, [&] { return path; });
}
BENCHMARK(copyByQt)->Name("copy/Qt")->Apply(sizes);

}  // namespace
