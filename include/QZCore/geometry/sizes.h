// Sizes: arithmetic, rounding, cropping and proportional scaling.
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

// ---- Arithmetic -------------------------------------------------------------

/// What `to` has more than `from` in each extent.
[[nodiscard]] QZ_EXPORT Size deltaSize(Size from, Size to);

/// The size with `dw` more width and `dh` more height.
[[nodiscard]] QZ_EXPORT Size growSize(Size size, float dw, float dh);

/// Both extents times `factor`.
[[nodiscard]] QZ_EXPORT Size scaleSize(Size size, double factor);

// ---- Rounding ---------------------------------------------------------------

/// Both extents rounded up, so that what fits the size fits the result: the same
/// as `ceilSize`, although points are rounded down by `integralPoint`.
[[nodiscard]] QZ_EXPORT Size integralSize(Size size);

/// Both extents rounded down.
[[nodiscard]] QZ_EXPORT Size floorSize(Size size);

/// Both extents rounded up.
[[nodiscard]] QZ_EXPORT Size ceilSize(Size size);

// ---- Fitting ----------------------------------------------------------------

/// The smaller of both in each extent.
[[nodiscard]] QZ_EXPORT Size cropSize(Size size, Size max);

/// The size scaled by one factor, up or down, to the largest that `max` holds. A
/// limit that is not positive does not count; without any the size stays. An
/// extent of 0 allows any factor: what is 0 by 0 becomes NaN.
[[nodiscard]] QZ_EXPORT Size scaleSizeProportionallyInSize(Size size, Size max);

QZ_END_C

}  // namespace QZCore
