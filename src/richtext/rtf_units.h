// The units of RTF.
#pragma once

namespace QZCore {

/// Most lengths are counted in twentieths of a point.
inline constexpr double kTwipsPerPoint = 20;
/// Font sizes and offsets from the baseline are counted in halves of one.
inline constexpr double kHalfPoints = 2;
/// Multiples of a line are counted in these parts of one.
inline constexpr double kPartsOfALine = 240;

/// The width of the text on the page that readers take when a document names
/// none, in points.
inline constexpr double kRtfTextWidth = 432;

}  // namespace QZCore
