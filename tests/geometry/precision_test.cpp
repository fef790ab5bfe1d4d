// Results that are promised in single precision, to the bit. The digests come
// from make_digests.py, a second reading of the rules in another language: they
// hold for every compiler and at every level of optimisation.
#include <bit>

#include "QZCore/geometry.h"
#include "support/plane_printing.h"
#include "support/random_plane.h"

namespace QZCore {
namespace {

/// The FNV-1a digest of results.
class Digest {
public:
    void add(double result) {
        auto bits = std::bit_cast<std::uint64_t>(result);
        for (int i = 0; i < 8; ++i, bits >>= 8) value_ = (value_ ^ (bits & 0xFF)) * 0x100000001B3;
    }
    void add(Point point) {
        add(point.x);
        add(point.y);
    }
    void add(Rect rect) {
        add(rect.origin);
        add(rect.size.width);
        add(rect.size.height);
    }
    [[nodiscard]] std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

using Random = testing::RandomPlane;

float angle(Random& random) { return static_cast<float>(random.number(-7, 7)); }

template <auto function, int kReach>
void ofTwoPoints(Random& random, Digest& digest) {
    const Point p = random.point(kReach);
    digest.add(function(p, random.point(kReach)));
}

template <auto function>
void ofAngle(Random& random, Digest& digest) {
    digest.add(function(angle(random)));
}

template <auto function, int kLargest>
void ofTwoRects(Random& random, Digest& digest) {
    const Rect r = random.rect(99, kLargest);
    digest.add(function(r, random.rect(99, kLargest)));
}

void ofPointAndSegment(Random& random, Digest& digest) {
    const Point point = random.point(99), a = random.point(99), b = random.point(99);
    Point delta;
    digest.add(distanceBetweenPointAndLine(point, a, b, &delta));
    digest.add(delta);
}

void ofNearness(Random& random, Digest& digest) {
    const Point point = random.point(20), a = random.point(20), b = random.point(20);
    digest.add(isPointNearLine(point, a, b, 5) ? 1 : 0);
}

void ofSegments(Random& random, Digest& digest) {
    const Point a1 = random.point(9), a2 = random.point(9), b1 = random.point(9),
                b2 = random.point(9);
    Point crossing{-1, -1};
    intersectionOfLineSegments(&crossing, a1, a2, b1, b2);
    digest.add(crossing);
}

void ofRectAndAngle(Random& random, Digest& digest) {
    const Rect rect = random.rect(100, 100);
    digest.add(pointOnRectFromAngle(rect, angle(random)));
}

void ofRectAndPoint(Random& random, Digest& digest) {
    const Rect rect = random.rect(100, 100);
    digest.add(angleOfPointOnRect(rect, random.point(100)));
}

void ofRect(Random& random, Digest& digest) { digest.add(nonIntegralRect(random.rect(1e6, 100))); }

}  // namespace

TEST_CASE("results in single precision are the same to the bit everywhere") {
    struct Row {
        std::string_view name;
        std::uint64_t digest;
        void (*add)(Random&, Digest&);
    };
    const Row rows[] = {
        {"radiansBetweenPoints", 0x28A4C316427666D7, ofTwoPoints<radiansBetweenPoints, 1000>},
        {"degreesBetweenPoints", 0xC34941B870A83030, ofTwoPoints<degreesBetweenPoints, 1000>},
        {"radiansFromDegrees", 0xF2729217C6A20BF7, ofAngle<radiansFromDegrees>},
        {"degreesFromRadians", 0xB45C946E2A900C28, ofAngle<degreesFromRadians>},
        {"distanceBetweenPoints", 0x68257921EADCB7EF, ofTwoPoints<distanceBetweenPoints, 1000>},
        {"distanceBetweenPointAndLine", 0xCCE4E03CCBBD6CA1, ofPointAndSegment},
        {"isPointNearLine", 0xF5EE6DF7D15F0898, ofNearness},
        {"intersectionOfLineSegments", 0xB1FE8EFD802659B0, ofSegments},
        {"pointOnRectFromAngle", 0xB03148F7846896B4, ofRectAndAngle},
        {"angleOfPointOnRect", 0x2FCFDDC200168E06, ofRectAndPoint},
        {"nonIntegralRect", 0xB82D81086555737B, ofRect},
        {"scaleRectProportionallyInRect", 0x77CD9E13DED461F5,
         ofTwoRects<scaleRectProportionallyInRect, 99>},
        {"distanceBetweenRectangles", 0xA8EF60DB56926747,
         ofTwoRects<distanceBetweenRectangles, 20>},
    };
    for (const Row& row : rows) {
        CAPTURE(row.name);
        Random random(row.name.size());
        Digest digest;
        for (int i = 0; i < 10'000; ++i) row.add(random, digest);
        CHECK(digest.value() == row.digest);
    }
}

}  // namespace QZCore
