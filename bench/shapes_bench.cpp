// Building shapes and reading and writing SVG path data, beside Qt's, lib2geom's and
// cairo's paths. Qt and cairo have no reader of path data of their own.
#include <2geom/path-sink.h>
#include <2geom/svg-path-parser.h>
#include <2geom/svg-path-writer.h>
#include <benchmark/benchmark.h>
#include <cairo.h>

#include <QPainterPath>
#include <random>

#include "QZCore/bezier.h"

namespace {

using QZCore::BezierPath;
using QZCore::Point;
using QZCore::Rect;

template <class Work>
void repeat(benchmark::State& state, Work work) {
    for (auto _ : state) benchmark::DoNotOptimize(work());
}

void rope(benchmark::State& state) {
    repeat(state, [] {
        return BezierPath::bezierPathRopeFromPoint({0, 0}, {300, 200}, true, true, 10, 10);
    });
}
BENCHMARK(rope)->Name("rope/QZCore");

void ropeByQt(benchmark::State& state) {
    repeat(state, [] {
        QPainterPath path;
        path.cubicTo(150, 0, 150, 200, 300, 200);
        return path;
    });
}
BENCHMARK(ropeByQt)->Name("rope/Qt");

void ropeByCairo(benchmark::State& state) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1);
    cairo_t* context = cairo_create(surface);
    repeat(state, [&] {
        cairo_new_path(context);
        cairo_move_to(context, 0, 0);
        cairo_curve_to(context, 150, 0, 150, 200, 300, 200);
        return context;
    });
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}
BENCHMARK(ropeByCairo)->Name("rope/cairo");

void bentLines(benchmark::State& state) {
    repeat(state, [] {
        return BezierPath::bezierPathBentLinesFromPoint({0, 0}, {300, 200}, true, true, 10, 10);
    });
}
BENCHMARK(bentLines)->Name("bent lines/QZCore");

void bentLinesByQt(benchmark::State& state) {
    repeat(state, [] {
        QPainterPath path;
        path.lineTo(150, 0);
        path.lineTo(150, 200);
        path.lineTo(300, 200);
        return path;
    });
}
BENCHMARK(bentLinesByQt)->Name("bent lines/Qt");

void roundedBentLines(benchmark::State& state) {
    repeat(state, [] {
        return BezierPath::bezierPathRoundedBentLinesFromPoint({0, 0}, {300, 200}, true, true, 10,
                                                               10, 20);
    });
}
BENCHMARK(roundedBentLines)->Name("rounded bent lines/QZCore");

void roundedRectangle(benchmark::State& state) {
    repeat(state, [] {
        return BezierPath::bezierPathWithRoundRectInRect({{0, 0}, {300, 200}}, 20);
    });
}
BENCHMARK(roundedRectangle)->Name("rounded rectangle/QZCore");

void roundedRectangleByQt(benchmark::State& state) {
    repeat(state, [] {
        QPainterPath path;
        path.addRoundedRect(0, 0, 300, 200, 20, 20);
        return path;
    });
}
BENCHMARK(roundedRectangleByQt)->Name("rounded rectangle/Qt");

void jaggedOval(benchmark::State& state) {
    const double side = static_cast<double>(state.range(0));
    repeat(state, [&] {
        return BezierPath::bezierPathWithJaggedOvalInRect({{0, 0}, {side, side}}, 8);
    });
}
BENCHMARK(jaggedOval)->Name("jagged oval/QZCore")->Arg(64)->Arg(512)->Arg(4096);

/// A path of lines, or of curves, through places on a board.
BezierPath scribble(std::int64_t count, bool isCurved) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> anywhere(0, 1000);
    const auto place = [&] {
        const double x = anywhere(random);
        return Point{x, anywhere(random)};
    };
    BezierPath path;
    path.moveToPoint(place());
    for (std::int64_t i = 0; i < count; ++i) {
        const Point end = place();
        if (isCurved) {
            path.curveToPoint(end, place(), place());
        } else {
            path.lineToPoint(end);
        }
    }
    return path;
}

void roundCorners(benchmark::State& state) {
    const BezierPath path = scribble(state.range(0), false);
    repeat(state, [&] { return path.bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(10); });
}
BENCHMARK(roundCorners)->Name("round corners/QZCore")->Arg(4)->Arg(64)->Arg(4096);

void readSvg(benchmark::State& state) {
    const QZCore::String data = svgPathData(scribble(state.range(0), true));
    repeat(state, [&] { return QZCore::readSvgPathData(data); });
}
BENCHMARK(readSvg)->Name("read SVG/QZCore")->Arg(1)->Arg(64)->Arg(4096);

void readSvgBy2geom(benchmark::State& state) {
    const std::string data = QZCore::toUTF8(svgPathData(scribble(state.range(0), true)));
    repeat(state, [&] { return Geom::parse_svg_path(data.c_str()); });
}
BENCHMARK(readSvgBy2geom)->Name("read SVG/lib2geom")->Arg(1)->Arg(64)->Arg(4096);

void writeSvg(benchmark::State& state) {
    const BezierPath path = scribble(state.range(0), true);
    repeat(state, [&] { return svgPathData(path); });
}
BENCHMARK(writeSvg)->Name("write SVG/QZCore")->Arg(1)->Arg(64)->Arg(4096);

void writeSvgBy2geom(benchmark::State& state) {
    const std::string data = QZCore::toUTF8(svgPathData(scribble(state.range(0), true)));
    const Geom::PathVector path = Geom::parse_svg_path(data.c_str());
    repeat(state, [&] { return Geom::write_svg_path(path); });
}
BENCHMARK(writeSvgBy2geom)->Name("write SVG/lib2geom")->Arg(1)->Arg(64)->Arg(4096);

}  // namespace
