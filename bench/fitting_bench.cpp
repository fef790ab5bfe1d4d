// Fitting curves to a freehand stroke, beside lib2geom's plain call, which ours makes.
#include <2geom/bezier-utils.h>
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "QZCore/bezier.h"

namespace {

using QZCore::BezierPath;
using QZCore::Point;

constexpr double kError = 1;
constexpr unsigned kMostCurves = 256;

/// Ten waves, drawn by a hand that trembles a little.
std::vector<Point> stroke(const benchmark::State& state) {
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> tremble(-0.2, 0.2);
    std::vector<Point> points;
    const auto count = static_cast<double>(state.range(0));
    for (double i = 0; i < count; ++i) {
        const double x = 1000 * i / count;
        points.push_back({x + tremble(random), 40 * std::sin(x / 16) + tremble(random)});
    }
    return points;
}

void sizes(benchmark::internal::Benchmark* job) { job->Arg(64)->Arg(4096)->Arg(1'000'000); }

void fit(benchmark::State& state) {
    const BezierPath path = BezierPath::bezierPathWithPointsArray(stroke(state));
    for (auto _ : state) benchmark::DoNotOptimize(curveFitPath(path, kError));
}
BENCHMARK(fit)->Name("fit/QZCore")->Apply(sizes);

void smartFit(benchmark::State& state) {
    BezierPath path = BezierPath::bezierPathWithPointsArray(stroke(state));
    path.closePath();
    for (auto _ : state) benchmark::DoNotOptimize(smartCurveFitPath(path, kError, 3));
}
BENCHMARK(smartFit)->Name("fit between corners/QZCore")->Apply(sizes);

void fitBy2geom(benchmark::State& state) {
    std::vector<Geom::Point> points;
    for (const Point& p : stroke(state)) points.emplace_back(p.x, p.y);
    std::vector<Geom::Point> curves(std::size_t{4} * kMostCurves);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Geom::bezier_fit_cubic_r(
            curves.data(), points.data(), static_cast<int>(points.size()), kError, kMostCurves));
    }
}
BENCHMARK(fitBy2geom)->Name("fit/lib2geom")->Apply(sizes);

}  // namespace
