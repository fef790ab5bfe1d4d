// Closed outlines with teeth.
#pragma once

#include "QZCore/bezier/bezier_path.h"

namespace QZCore {

/// The rectangle about the same centre whose straight edges, those between corners
/// with the half axes `a` and `b`, hold whole teeth: it is smaller by less than the
/// spacing each way. An edge on which no tooth stands keeps its length.
[[nodiscard]] Rect joc_validRectWithRect(Rect rect, double a, double b, double spacing);

/// A rectangle with rounded corners and a jagged outline, closed. The outline through
/// the tips has corners with the half axes `a` across and `b` down, at most half
/// the width and the height; too small ones are sharp. For the teeth see
/// `BezierPath::bezierPathWithJaggedPillInRect`.
[[nodiscard]] BezierPath joc_bezierPathWithJaggedRoundedRectInRect(Rect rect, double a, double b,
                                                                   double spacing);

}  // namespace QZCore
