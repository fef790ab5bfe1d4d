// How connectors leave their figures.
//
// A connector begins and ends with a nub: a short straight stub along an axis.
// `BezierPath` has the connectors themselves.
#pragma once

#include "QZCore/export.h"

namespace QZCore {

QZ_BEGIN_C

/// How far a nub of length `n` reaches when the figures are twice `h` apart along
/// its axis. Ahead of the figure (`h` above 0) it is half-way, but at least the
/// nub's length; else the nub's length and the half distance that it has to make
/// good. Computed in single precision. The spelling is part of the interface.
[[nodiscard]] QZ_EXPORT float nubThreshhold(float h, float n);

QZ_END_C

}  // namespace QZCore
