// Asking a path again, and building a short one, takes no memory.
#include <atomic>
#include <cstdlib>
#include <new>

#include "QZCore/bezier.h"
#include "support/plane_printing.h"
#include "support/random_path.h"

namespace {

std::atomic<int> allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* block = std::malloc(size)) return block;
    throw std::bad_alloc();
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { std::free(block); }

namespace QZCore {
namespace {

template <class Work>
int allocationsOf(Work work) {
    const int before = allocations;
    work();
    return allocations - before;
}

/// Asks all that has an answer without a path or an array in it.
void ask(const BezierPath& path, const BezierPath& other, Point p) {
    float slope = 0;
    Point crossing;
    (void)path.length();
    (void)path.lengthToSegment(path.elementCount() / 2, &slope);
    (void)path.pointOnPathAtLength(static_cast<float>(path.length() / 3), &slope);
    (void)path.strokeContainsPoint(p, 2);
    (void)path.segmentNearPoint(p, 0, &slope);
    (void)path.pointOnPathNearbyPoint(p, -1);
    (void)path.intersectionWithLine(&crossing, p, {0, 0});
    (void)path.intersectionWithPath(other);
    (void)path.distanceFromPath(other, &crossing);
    (void)path.containsPoint(p);
    (void)path.containsPath(other);
    (void)path.bounds();
    (void)path.currentPoint();
    (void)path.hash();
    (void)path.isEqual(other);
}

}  // namespace

TEST_CASE("asking a path again allocates nothing") {
    testing::RandomPlane random(41);
    for (const int count : {3, 8, 60, 600}) {
        CAPTURE(count);
        const BezierPath path = testing::randomPath(random, count);
        BezierPath other = testing::randomPath(random, 20);
        other.translateXBy(150, 20);
        for (int i = 0; i < 2; ++i) ask(path, other, random.point(100));
        for (int i = 0; i < 50; ++i) {
            const Point p = random.point(100);
            CHECK(allocationsOf([&] { ask(path, other, p); }) == 0);
        }
        CHECK(allocationsOf([&] { (void)BezierPath(path); }) == 0);
    }
}

TEST_CASE("building a short path allocates nothing") {
    CHECK(allocationsOf([] {
              BezierPath::bezierPathRopeFromPoint({0, 0}, {90, 40}, true, true, 10, 10)
                  .bezierPathByTrimmingToLength(50)
                  .translateXBy(1, 2);
              BezierPath::bezierPathBentLinesFromPoint({0, 0}, {90, 40}, true, false, 10, 10)
                  .insetPathBy(3)
                  .makeSureAllControlPointsAreNonIntegral();
          }) == 0);
    CHECK(allocationsOf([] { (void)BezierPath::bezierPathWithRect({{0, 0}, {9, 9}}); }) == 0);
    CHECK(allocationsOf(
              [] { (void)BezierPath::bezierPathWithPointsArray(std::vector<Point>(9)); }) > 0);
}

}  // namespace QZCore
