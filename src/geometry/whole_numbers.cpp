#include "QZCore/geometry/whole_numbers.h"

#include <cmath>

namespace QZCore {

bool isNumberEven(std::int32_t number) { return (number & 1) == 0; }

bool isWholeNumber(float number) { return std::floor(number) == number; }

}  // namespace QZCore
