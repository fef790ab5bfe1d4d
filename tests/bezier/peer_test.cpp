// Answers beside those of lib2geom, which works in other ways.
#include <2geom/path.h>

#include <cmath>

#include "QZCore/bezier.h"
#include "support/path_pieces.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {
namespace {

/// A closed path of curves and lines.
BezierPath randomOutline(testing::RandomPlane& random) {
    BezierPath path;
    const Point start = random.point(100);
    path.moveToPoint(start);
    for (int i = 2 + random.below(20); i > 0; --i) {
        const Point control1 = random.point(100);
        const Point control2 = random.point(100);
        const Point end = i == 1 ? start : random.point(100);
        if (i % 3 == 0) path.lineToPoint(end);
        if (i % 3 != 0) path.curveToPoint(end, control1, control2);
    }
    return path;
}

Geom::Point geomPoint(Point p) { return {p.x, p.y}; }

Geom::Path geomPath(const BezierPath& path) {
    Geom::Path made;
    for (const auto& [type, s] : testing::piecesOf(path)) {
        if (type == PathElementType::MoveTo) made.start(geomPoint(s[3]));
        if (type == PathElementType::LineTo) made.appendNew<Geom::LineSegment>(geomPoint(s[3]));
        if (type == PathElementType::CurveTo) {
            made.appendNew<Geom::CubicBezier>(geomPoint(s[1]), geomPoint(s[2]), geomPoint(s[3]));
        }
    }
    return made;
}

}  // namespace

TEST_CASE("bounds, fills, hits and crossings agree with lib2geom's") {
    testing::RandomPlane random(41);
    int near = 0, found = 0, lines = 0, sameCounts = 0;
    for (int i = 0; i < 200; ++i) {
        const BezierPath path = randomOutline(random);
        const Geom::Path peer = geomPath(path);
        const Geom::OptRect box = peer.boundsExact();
        CHECK(path.bounds().origin.x == doctest::Approx(box->left()));
        CHECK(path.bounds().size.height == doctest::Approx(box->height()));
        for (int k = 0; k < 10; ++k) {
            const Point p = random.point(100);
            double distance = 0;
            (void)peer.nearestTime(geomPoint(p), &distance);
            const bool isHit = path.strokeContainsPoint(p, 4.5F);
            if (isHit) CHECK(distance < 5.01);
            if (distance > 0.01) {
                CHECK(path.containsPoint(p) == (peer.winding(geomPoint(p)) != 0));
            }
            near += distance < 4;
            found += distance < 4 && isHit;

            const Point start = random.point(100);
            Geom::Path line(geomPoint(start));
            line.appendNew<Geom::LineSegment>(geomPoint(p));
            std::vector<float> positions;
            path.addIntersectionsWithLineStart(start, p, positions);
            sameCounts += positions.size() == peer.intersect(line).size();
            ++lines;
        }
    }
    // The search along a curve may stop short of it, where it turns sharply, and ends count for
    // both elements.
    CHECK(found > 0.85 * near);
    CHECK(sameCounts > 0.99 * lines);
}

}  // namespace QZCore
