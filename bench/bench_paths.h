// Paths to measure, as ours and as those of the peers.
#pragma once

#include <2geom/path.h>
#include <benchmark/benchmark.h>

#include <QPainterPath>
#include <cmath>
#include <random>

#include "QZCore/bezier.h"

namespace bench_paths {

using QZCore::BezierPath;
using QZCore::PathElementType;
using QZCore::Point;

/// A connecting line: one curve.
inline BezierPath rope() {
    BezierPath path;
    path.moveToPoint({0, 0});
    path.curveToPoint({300, 200}, {150, 0}, {150, 200});
    return path;
}

/// A closed outline of `count` curves around a circle, which bulge by up to a third of
/// their width.
inline BezierPath outline(std::size_t count) {
    std::mt19937_64 random(1);
    const double bulge = 2 / static_cast<double>(count);
    std::uniform_real_distribution<double> wobble(1 - bulge, 1 + bulge);
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

inline BezierPath pathOf(const benchmark::State& state) {
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

inline QPainterPath qtPath(const BezierPath& path) {
    QPainterPath made;
    rebuild(
        path, [&](Point p) { made.moveTo(p.x, p.y); },
        [&](Point a, Point b, Point c) { made.cubicTo(a.x, a.y, b.x, b.y, c.x, c.y); });
    return made;
}

inline Geom::Path geomPath(const BezierPath& path) {
    Geom::Path made;
    rebuild(
        path, [&](Point p) { made.start(Geom::Point(p.x, p.y)); },
        [&](Point a, Point b, Point c) {
            made.appendNew<Geom::CubicBezier>(Geom::Point(a.x, a.y), Geom::Point(b.x, b.y),
                                              Geom::Point(c.x, c.y));
        });
    return made;
}

template <class Work>
void repeat(benchmark::State& state, Work work) {
    for (auto _ : state) benchmark::DoNotOptimize(work());
}

}  // namespace bench_paths
