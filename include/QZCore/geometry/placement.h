// Placement: where a rectangle goes in a container or beside a neighbour, and
// how it is scaled into one.
//
// Placing keeps the size. A rectangle larger than its container sticks out on
// both sides when centred, on the far side otherwise.
#pragma once

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

QZ_BEGIN_C

// ---- In a container ---------------------------------------------------------

/// The rectangle in the top left corner of the container.
[[nodiscard]] QZ_EXPORT Rect topRectInRect(Rect rect, Rect container);

/// The rectangle in the bottom left corner of the container.
[[nodiscard]] QZ_EXPORT Rect bottomRectInRect(Rect rect, Rect container);

/// The rectangle at the container's left edge, half-way down.
[[nodiscard]] QZ_EXPORT Rect verticallyCenterRectInRect(Rect rect, Rect container);

/// The rectangle at the container's top edge, half-way across.
[[nodiscard]] QZ_EXPORT Rect horizontallyCenterRectInRect(Rect rect, Rect container);

/// The rectangle in the middle of the container.
[[nodiscard]] QZ_EXPORT Rect centerRectInRect(Rect rect, Rect container);

/// The rectangle half-way across the container, with a third of the free height
/// above it: where a dialog looks centred.
[[nodiscard]] QZ_EXPORT Rect topThirdRectInRect(Rect rect, Rect container);

// ---- Beside a neighbour -----------------------------------------------------

/// The rectangle moved along x, so that the left edges are in line.
[[nodiscard]] QZ_EXPORT Rect leftAlignRectToRect(Rect rect, Rect neighbor);

/// The rectangle moved along y, to one unit above the neighbour.
[[nodiscard]] QZ_EXPORT Rect stackRectOverRect(Rect rect, Rect neighbor);

/// The rectangle moved along y, to one unit below the neighbour.
[[nodiscard]] QZ_EXPORT Rect stackRectUnderRect(Rect rect, Rect neighbor);

/// The rectangle one unit above the neighbour, the left edges in line.
[[nodiscard]] QZ_EXPORT Rect leftStackRectOverRect(Rect rect, Rect neighbor);

/// The rectangle one unit below the neighbour, the left edges in line.
[[nodiscard]] QZ_EXPORT Rect leftStackRectUnderRect(Rect rect, Rect neighbor);

// ---- Scaling ----------------------------------------------------------------

/// Origin and size times `factor`.
[[nodiscard]] QZ_EXPORT Rect scaleRect(Rect rect, double factor);

/// The rectangle at its origin, its size scaled by one factor, up or down, to the
/// largest that fits the container's size. The factor is a float. An extent of 0
/// allows any factor: what is 0 by 0 becomes NaN.
[[nodiscard]] QZ_EXPORT Rect scaleRectProportionallyInRect(Rect rect, Rect container);

QZ_END_C

}  // namespace QZCore
