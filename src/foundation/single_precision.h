// Single precision, where an interface promises it.
#pragma once

namespace QZCore {

/// Rounds to single precision. Written out at every step whose result is
/// defined as a float, so that the rounding is visible in the code.
[[nodiscard]] constexpr float f32(double value) { return static_cast<float>(value); }

}  // namespace QZCore
