// Measuring paths, beside Qt's, lib2geom's and cairo's paths.
#include <2geom/sbasis-geometric.h>
#include <benchmark/benchmark.h>
#include <cairo.h>

#include "bench_paths.h"

namespace {

using namespace bench_paths;

double geomLength(const Geom::Path& path) {
    double length = 0;
    for (const Geom::Curve& curve : path) length += curve.length(0.1);
    return length;
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
