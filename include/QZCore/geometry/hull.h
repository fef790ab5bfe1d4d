// The convex hull of points.
#pragma once

#include <cstdint>

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

/// Compares the x of two points, given by address, for sorting: 1 when that of `a`
/// is greater, -1 when it is less, else 0. The y are not looked at.
[[nodiscard]] QZ_EXPORT int cmpPoints(const void* a, const void* b);

/// Whether the way from `points[i]` over `points[j]` to `points[k]` turns right at
/// `points[j]`, as seen with y pointing down.
[[nodiscard]] QZ_EXPORT bool rightTurn(const Point* points, std::int32_t i, std::int32_t j,
                                       std::int32_t k);

/// The convex hull of `n` points. Sorts the points in place, by x and, where that
/// is equal, by y; NaN goes last. Writes to `outIndices` the indices of the hull's
/// corners among the sorted points, as an array that the caller releases with
/// `free`, and returns their number. They go from the first point along the side
/// of greater y to the last one, and back along the other side; points on an
/// edge and repeated points are left out. One or two points give the indices 0
/// and n - 1.
///
/// Without points (none, a null array, n below 0) the result is 0 and the array
/// null. Without `outIndices` the points are sorted and counted only.
QZ_EXPORT std::int32_t convexHull(Point* points, std::int32_t n, std::int32_t** outIndices);

QZ_END_C

}  // namespace QZCore
