// The units of RTF.
#pragma once

namespace QZCore {

/// Most lengths are counted in twentieths of a point.
inline constexpr double kTwipsPerPoint = 20;
/// Font sizes and offsets from the baseline are counted in halves of one.
inline constexpr double kHalfPoints = 2;
/// Multiples of a line are counted in these parts of one.
inline constexpr double kPartsOfALine = 240;

}  // namespace QZCore
