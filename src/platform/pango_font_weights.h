// The scale of weights.
#pragma once

namespace QZCore {

/// Fontconfig's `weight` on the scale from 0 to 15 on which 5 is regular.
[[nodiscard]] int fontWeightFromFontconfig(double weight);

/// From here on, on the scale from 0 to 15, a face counts as bold.
inline constexpr int kLightestBoldWeight = 8;

}  // namespace QZCore
