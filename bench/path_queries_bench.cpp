// Hits, crossings and places of paths, beside Qt's, lib2geom's and cairo's paths.
#include <cairo.h>

#include "bench_paths.h"

namespace {

using namespace bench_paths;

constexpr double kReach = 4.5;  // half a line width of 1, and a padding of 4

void sizes(benchmark::internal::Benchmark* job) { job->Arg(1)->Arg(64)->Arg(4096)->Arg(1'000'000); }
void smallSizes(benchmark::internal::Benchmark* job) { job->Arg(1)->Arg(64)->Arg(4096); }

/// Points around the outline, half of them near it.
std::vector<Point> pointsAround(const BezierPath& path) {
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> share(0, 1);
    std::uniform_real_distribution<double> off(-8, 8);
    const QZCore::Rect bounds = path.bounds();
    std::vector<Point> points;
    for (int i = 0; i < 64; ++i) {
        Point p = path.pointOnPathAtPosition(share(random));
        p = {p.x + off(random), p.y + off(random)};
        if (i % 2 == 0) {
            p = {bounds.origin.x + bounds.size.width * share(random),
                 bounds.origin.y + bounds.size.height * share(random)};
        }
        points.push_back(p);
    }
    return points;
}

/// Asks with one point after the other.
template <class Ask>
void askAround(benchmark::State& state, const BezierPath& path, Ask ask) {
    const std::vector<Point> points = pointsAround(path);
    std::size_t i = 0;
    (void)ask(points[0]);  // which may find what is kept
    repeat(state, [&] { return ask(points[i++ % points.size()]); });
}

/// Forgets what is known of a path before each question.
template <class Ask>
void askCold(benchmark::State& state, Ask ask) {
    BezierPath path = pathOf(state);
    Point first;
    path.elementAtIndex(0, &first);
    const std::vector<Point> points = pointsAround(path);
    std::size_t i = 0;
    repeat(state, [&] {
        path.setAssociatedPoints(&first, 0);
        return ask(path, points[i++ % points.size()]);
    });
}

/// A cairo context with the path.
class Cairo {
public:
    explicit Cairo(const BezierPath& path) {
        rebuild(
            path, [&](Point p) { cairo_move_to(context_, p.x, p.y); },
            [&](Point a, Point b, Point c) {
                cairo_curve_to(context_, a.x, a.y, b.x, b.y, c.x, c.y);
            });
        cairo_set_line_width(context_, 2 * kReach);
    }
    ~Cairo() {
        cairo_destroy(context_);
        cairo_surface_destroy(surface_);
    }
    [[nodiscard]] cairo_t* get() const { return context_; }

private:
    cairo_surface_t* surface_ = cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1);
    cairo_t* context_ = cairo_create(surface_);
};

void hit(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    askAround(state, path, [&](Point p) { return path.strokeContainsPoint(p, 4); });
}
BENCHMARK(hit)->Name("stroke hit again/QZCore")->Apply(sizes);

void hitCold(benchmark::State& state) {
    askCold(state, [](const BezierPath& path, Point p) { return path.strokeContainsPoint(p, 4); });
}
BENCHMARK(hitCold)->Name("stroke hit/QZCore")->Apply(sizes);

void hitByQt(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const QPainterPath qt = qtPath(path);
    QPainterPathStroker stroker;
    stroker.setWidth(2 * kReach);
    askAround(state, path,
              [&](Point p) { return stroker.createStroke(qt).contains(QPointF(p.x, p.y)); });
}
BENCHMARK(hitByQt)->Name("stroke hit/Qt")->Apply(smallSizes);

void hitByCairo(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const Cairo cairo(path);
    askAround(state, path, [&](Point p) { return cairo_in_stroke(cairo.get(), p.x, p.y); });
}
BENCHMARK(hitByCairo)->Name("stroke hit/cairo")->Apply(sizes);

void hitBy2geom(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const Geom::Path geom = geomPath(path);
    askAround(state, path, [&](Point p) {
        double distance = 0;
        (void)geom.nearestTime(Geom::Point(p.x, p.y), &distance);
        return distance < kReach;
    });
}
BENCHMARK(hitBy2geom)->Name("stroke hit/lib2geom")->Apply(sizes);

void nearest(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    askAround(state, path, [&](Point p) { return path.segmentNearPoint(p, -1); });
}
BENCHMARK(nearest)->Name("nearest element again/QZCore")->Apply(sizes);

void nearestCold(benchmark::State& state) {
    askCold(state, [](const BezierPath& path, Point p) { return path.segmentNearPoint(p, -1); });
}
BENCHMARK(nearestCold)->Name("nearest element/QZCore")->Apply(sizes);

void nearestBy2geom(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const Geom::Path geom = geomPath(path);
    askAround(state, path,
              [&](Point p) { return geom.nearestTime(Geom::Point(p.x, p.y)).curve_index; });
}
BENCHMARK(nearestBy2geom)->Name("nearest element/lib2geom")->Apply(sizes);

constexpr Point kLineStart{80, 20};

void line(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    askAround(state, path,
              [&](Point p) { return path.intersectionWithLine(nullptr, kLineStart, p); });
}
BENCHMARK(line)->Name("line against path again/QZCore")->Apply(sizes);

void lineCold(benchmark::State& state) {
    askCold(state, [](const BezierPath& path, Point p) {
        return path.intersectionWithLine(nullptr, kLineStart, p);
    });
}
BENCHMARK(lineCold)->Name("line against path/QZCore")->Apply(sizes);

void lineByQt(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const QPainterPath qt = qtPath(path);
    askAround(state, path, [&](Point p) {
        QPainterPath segment(QPointF(kLineStart.x, kLineStart.y));
        segment.lineTo(p.x, p.y);
        return qt.intersects(segment);
    });
}
BENCHMARK(lineByQt)->Name("line against path/Qt")->Apply(smallSizes);

void lineBy2geom(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const Geom::Path geom = geomPath(path);
    askAround(state, path, [&](Point p) {
        Geom::Path segment(Geom::Point(kLineStart.x, kLineStart.y));
        segment.appendNew<Geom::LineSegment>(Geom::Point(p.x, p.y));
        return geom.intersect(segment).size();
    });
}
BENCHMARK(lineBy2geom)->Name("line against path/lib2geom")->Apply(sizes);

/// The path itself, moved so that it crosses in few places.
BezierPath moved(const BezierPath& path) {
    BezierPath other = path;
    other.rotateByDegrees(3);
    other.translateXBy(path.bounds().size.width * 0.7, path.bounds().size.height * 0.2);
    return other;
}

void pair(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const BezierPath other = moved(path);
    (void)path.intersectionWithPath(other);
    repeat(state, [&] { return path.intersectionsWithPath(other).size(); });
}
BENCHMARK(pair)->Name("path against path again/QZCore")->Apply(sizes);

void pairCold(benchmark::State& state) {
    BezierPath path = pathOf(state);
    BezierPath other = moved(path);
    Point first;
    Point second;
    path.elementAtIndex(0, &first);
    other.elementAtIndex(0, &second);
    repeat(state, [&] {
        path.setAssociatedPoints(&first, 0);
        other.setAssociatedPoints(&second, 0);
        return path.intersectionsWithPath(other).size();
    });
}
BENCHMARK(pairCold)->Name("path against path/QZCore")->Apply(sizes);

void pairByQt(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const QPainterPath qt = qtPath(path);
    const QPainterPath other = qtPath(moved(path));
    repeat(state, [&] { return qt.intersects(other); });
}
BENCHMARK(pairByQt)->Name("path against path/Qt")->Apply(smallSizes);

void pairBy2geom(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const Geom::Path geom = geomPath(path);
    const Geom::Path other = geomPath(moved(path));
    repeat(state, [&] { return geom.intersect(other).size(); });
}
BENCHMARK(pairBy2geom)->Name("path against path/lib2geom")->Apply(smallSizes);

void distance(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    BezierPath other = path;
    other.translateXBy(path.bounds().size.width + 10, 5);
    (void)path.distanceFromPath(other);
    repeat(state, [&] { return path.distanceFromPath(other); });
}
BENCHMARK(distance)->Name("distance of paths again/QZCore")->Apply(sizes);

void fill(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    askAround(state, path, [&](Point p) { return path.containsPoint(p); });
}
BENCHMARK(fill)->Name("fill test again/QZCore")->Apply(sizes);

void fillCold(benchmark::State& state) {
    askCold(state, [](const BezierPath& path, Point p) { return path.containsPoint(p); });
}
BENCHMARK(fillCold)->Name("fill test/QZCore")->Apply(sizes);

void fillByQt(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const QPainterPath qt = qtPath(path);
    askAround(state, path, [&](Point p) { return qt.contains(QPointF(p.x, p.y)); });
}
BENCHMARK(fillByQt)->Name("fill test/Qt")->Apply(sizes);

void fillByCairo(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const Cairo cairo(path);
    askAround(state, path, [&](Point p) { return cairo_in_fill(cairo.get(), p.x, p.y); });
}
BENCHMARK(fillByCairo)->Name("fill test/cairo")->Apply(sizes);

void fillBy2geom(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const Geom::Path geom = geomPath(path);
    askAround(state, path, [&](Point p) { return geom.winding(Geom::Point(p.x, p.y)); });
}
BENCHMARK(fillBy2geom)->Name("fill test/lib2geom")->Apply(sizes);

void flatten(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    repeat(state, [&] { return path.bezierPathByFlatteningPath(); });
}
BENCHMARK(flatten)->Name("flattening/QZCore")->Apply(sizes);

void flattenByQt(benchmark::State& state) {
    const QPainterPath qt = qtPath(pathOf(state));
    repeat(state, [&] { return qt.toSubpathPolygons(); });
}
BENCHMARK(flattenByQt)->Name("flattening/Qt")->Apply(sizes);

void flattenByCairo(benchmark::State& state) {
    const Cairo cairo(pathOf(state));
    repeat(state, [&] {
        cairo_path_t* flat = cairo_copy_path_flat(cairo.get());
        const int count = flat->num_data;
        cairo_path_destroy(flat);
        return count;
    });
}
BENCHMARK(flattenByCairo)->Name("flattening/cairo")->Apply(sizes);

void trim(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const auto length = static_cast<float>(path.length() * 0.6);
    repeat(state, [&] { return path.bezierPathByTrimmingToLength(length); });
}
BENCHMARK(trim)->Name("trimming/QZCore")->Apply(sizes);

void trimBy2geom(benchmark::State& state) {
    const BezierPath path = pathOf(state);
    const Geom::Path geom = geomPath(path);
    const double wanted = path.length() * 0.6;
    repeat(state, [&] {
        double length = 0;
        Geom::Coord time = 0;
        for (const Geom::Curve& curve : geom) {
            const double own = curve.length(0.1);
            if (length + own > wanted) {
                time += (wanted - length) / own;  // not even bisected
                break;
            }
            length += own;
            ++time;
        }
        return geom.portion(0, time);
    });
}
BENCHMARK(trimBy2geom)->Name("trimming/lib2geom")->Apply(smallSizes);

}  // namespace
