#include <cmath>

#include "QZCore/bezier.h"
#include "QZCore/geometry.h"
#include "support/path_data.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace QZCore {

TEST_CASE("the rest of a path follows what was trimmed off") {
    testing::RandomPlane random(41);
    for (int i = 0; i < 300; ++i) {
        BezierPath path = testing::pathOf(u"M1 1");
        path.appendBezierPath(testing::randomPath(random, 3 + random.below(20)));
        const auto length = static_cast<float>(path.length());
        const auto from = static_cast<float>(random.number(0, length));
        const auto to = static_cast<float>(random.number(0, length));
        const BezierPath part = path.bezierPathFromLength(from, to);
        CAPTURE(svgPathData(path));
        const double margin = 0.3 + 0.002 * length;
        REQUIRE(std::abs(part.length() - std::max(to - from, 0.0F)) < margin);
        if (to - from <= margin) continue;
        REQUIRE(distanceBetweenPoints(testing::pointsOf(part).front(),
                                      path.pointOnPathAtLength(from)) < 1);
        REQUIRE(part.currentPoint() == path.bezierPathByTrimmingToLength(to).currentPoint());
    }
    const BezierPath square = testing::pathOf(u"M0 0H10V10H0Z");
    CHECK(square.bezierPathFromLength(15, 40) == testing::pathOf(u"M10 5V10H0V0"));
    CHECK(square.bezierPathFromLength(0, 100) == square);
    CHECK(square.bezierPathFromLength(40, 100).isEmpty());
    CHECK(square.bezierPathFromLength(NAN, 10) ==
          testing::pathOf(u"M0 0H10V10").bezierPathByTrimmingToLength(10));
}

}  // namespace QZCore
