// Points, sizes and rectangles as texts for people: two decimals, and words for
// the zero and the huge values. They do not depend on the locale.
#pragma once

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

/// "{ 1.00, 2.50 }", "{ zero point }" or "{ huge point }".
[[nodiscard]] QZ_EXPORT String descriptionForPoint(Point point);

/// "{ 1.00 x 2.50 }", "{ zero size }" or "{ huge size }".
[[nodiscard]] QZ_EXPORT String descriptionForSize(Size size);

/// "{ origin = { 1.00, 2.50 } size = { zero size } }": the descriptions of both
/// parts. A rectangle that is zero or huge as a whole is "{ zero rectangle }" or
/// "{ huge rectangle }".
[[nodiscard]] QZ_EXPORT String descriptionForRect(Rect rect);

}  // namespace QZCore
