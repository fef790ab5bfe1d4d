// Arithmetic that compilers have been seen to change. The file is compiled at
// the highest level of optimisation in every build.
#include "foundation/single_precision.h"

#include <doctest/doctest.h>

#include <random>

namespace QZCore {
namespace {

struct Pair {
    double x = 0;
    double y = 0;
};

[[gnu::noinline]] Pair roundedPair(double x, double y) { return {f32(x), f32(y)}; }

#ifdef __x86_64__
#define WITH_FUSED_INSTRUCTIONS gnu::target("fma"),
bool hasFusedInstructions() { return __builtin_cpu_supports("fma") != 0; }
#else
#define WITH_FUSED_INSTRUCTIONS
bool hasFusedInstructions() { return true; }
#endif

[[WITH_FUSED_INSTRUCTIONS gnu::noinline]] float crossProduct(float ax, float ay, float bx,
                                                             float by) {
    return ax * by - ay * bx;
}

}  // namespace

TEST_CASE("a rounded pair is rounded") {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> anywhere(-1e6, 1e6);
    for (int i = 0; i < 1000; ++i) {
        const double x = anywhere(random);
        const double y = anywhere(random);
        const volatile float expectedX = static_cast<float>(x);
        const volatile float expectedY = static_cast<float>(y);
        const Pair pair = roundedPair(x, y);
        REQUIRE(pair.x == static_cast<double>(expectedX));
        REQUIRE(pair.y == static_cast<double>(expectedY));
    }
}

TEST_CASE("the cross product of a vector with itself is zero, also where products can be fused") {
    if (!hasFusedInstructions()) return;
    std::mt19937_64 random(2);
    std::uniform_real_distribution<float> anywhere(-1e3F, 1e3F);
    for (int i = 0; i < 1000; ++i) {
        const float x = anywhere(random);
        const float y = anywhere(random);
        REQUIRE(crossProduct(x, y, x, y) == 0);
    }
}

}  // namespace QZCore
