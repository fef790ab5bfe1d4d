// Questions about numbers: whether one is even, whether one is whole.
#pragma once

#include <cstdint>

#include "QZCore/export.h"

namespace QZCore {

QZ_BEGIN_C

/// Whether the lowest bit of `number` is 0.
[[nodiscard]] QZ_EXPORT bool isNumberEven(std::int32_t number);

/// Whether `number` has no fraction. Infinities are whole, NaN is not.
[[nodiscard]] QZ_EXPORT bool isWholeNumber(float number);

QZ_END_C

}  // namespace QZCore
