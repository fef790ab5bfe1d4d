#include "bezier/length_bounds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "QZCore/bezier/cubics.h"
#include "bezier/curve_records.h"

namespace QZCore {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr LengthBounds kUnknown{-kInfinity, kInfinity};
// Smaller errors may be less than what underflows.
constexpr float kLeastError = 1e-6F;
// The squares of longer distances are beyond the floats.
constexpr double kLongest = 1e18;
// Sums of at most 128 roundings of distances to floats, with the distances' own.
constexpr double kRoundingOfSums = 2e-5;
// The rounding of the ends of half a million pieces.
constexpr double kRoundingOfEnds = 1e-6;

double distance(Point a, Point b) {
    const Point d{b.x - a.x, b.y - a.y};
    return std::sqrt(dotProduct(d, d));
}

double polygonOf(const Point* s) {
    return distance(s[0], s[1]) + distance(s[1], s[2]) + distance(s[2], s[3]);
}

/// How far the segment's coordinates are from 0.
double farthest(const Point* s) {
    double most = 0;
    for (int i = 0; i < 4; ++i) most = std::max({most, std::abs(s[i].x), std::abs(s[i].y)});
    return most;
}

/// The chords of equal pieces are together no longer than those of smaller ones, the
/// polygons no shorter. Where measuring is content with larger pieces, each is off by
/// half the error at most.
template <int halvings>
LengthBounds boundsOfPieces(const Point* segment, double maxError) {
    constexpr int kPieces = 1 << halvings;
    std::array<std::array<Point, 4>, kPieces> pieces;
    std::copy_n(segment, 4, pieces[0].begin());
    for (std::size_t count = 1; count < kPieces; count *= 2) {
        for (std::size_t i = count; i-- > 0;) {
            splitBezierCurveTo(pieces[i].data(), pieces[2 * i].data(), pieces[2 * i + 1].data());
        }
    }
    double chords = 0;
    double polygons = 0;
    for (const auto& piece : pieces) {
        chords += distance(piece[0], piece[3]);
        polygons += polygonOf(piece.data());
    }
    const double margin =
        kPieces * maxError / 2 + kRoundingOfSums * polygons + kRoundingOfEnds * farthest(segment);
    return {chords - margin, polygons + margin};
}

}  // namespace

LengthBounds boundsOfLength(const Point* segment, float maxError) {
    constexpr double kLong = 500;
    constexpr double kVeryLong = 1e6;
    const double polygon = polygonOf(segment);
    if (!(maxError >= kLeastError && polygon <= kLongest && polygon > kLong * maxError)) {
        return kUnknown;
    }
    return polygon > kVeryLong * maxError ? boundsOfPieces<7>(segment, maxError)
                                          : boundsOfPieces<3>(segment, maxError);
}

}  // namespace QZCore
