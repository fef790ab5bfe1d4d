// What another language sees: plain names and plain structures. This file
// declares them itself, as a foreign caller would.
#include <doctest/doctest.h>

#include <cstdlib>

struct ForeignPoint {
    double x, y;
};
struct ForeignRect {
    double x, y, width, height;
};

#ifdef __clang__
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif
extern "C" {
extern const ForeignRect QZHugeRect;
ForeignPoint offsetPoint(ForeignPoint point, float dx, float dy);
float distanceBetweenPoints(ForeignPoint p, ForeignPoint q);
ForeignRect stackRectUnderRect(ForeignRect rect, ForeignRect neighbor);
int convexHull(ForeignPoint* points, int n, int** outIndices);
int cmpPoints(const void* a, const void* b);
}

TEST_CASE("the functions are found by their plain names and take C structures") {
    const ForeignPoint moved = offsetPoint({1, 2}, 3, 4);
    CHECK(moved.x == 4);
    CHECK(moved.y == 6);
    CHECK(distanceBetweenPoints({0, 0}, {3, 4}) == 5);
    CHECK(QZHugeRect.height == 3.4028234663852886e+38);

    const ForeignRect stacked = stackRectUnderRect({5, 5, 10, 10}, {0, 0, 100, 20});
    CHECK(stacked.y == 21);
    CHECK(stacked.height == 10);

    ForeignPoint points[] = {{2, 0}, {0, 0}, {1, 1}};
    int* indices = nullptr;
    REQUIRE(convexHull(points, 3, &indices) == 3);
    CHECK(points[indices[1]].y == 1);
    std::free(indices);
    std::qsort(points, 3, sizeof points[0], cmpPoints);
    CHECK(points[2].x == 2);
}
