#include "dates/number_bounds.h"

#include <cmath>
#include <limits>

namespace QZCore {
namespace {

Value countingBound(const Value& bound) {
    return bound.isNumber() && !std::isnan(bound.doubleValue()) ? bound : Value();
}

/// Holds every integer and every double as it is.
using Exact = long double;
static_assert(std::numeric_limits<Exact>::digits >= 64);

Exact exactly(const Value& number) {
    switch (number.kind()) {
        case ValueKind::Real:
            return number.doubleValue();
        case ValueKind::Unsigned:
            return static_cast<Exact>(number.unsignedIntegerValue());
        default:
            return static_cast<Exact>(number.integerValue());
    }
}

}  // namespace

NumberBounds::NumberBounds(const Value& minimum, const Value& maximum)
    : minimum_(countingBound(minimum)), maximum_(countingBound(maximum)) {}

bool NumberBounds::isBelow(const Value& number) const {
    return !minimum_.isAbsent() && exactly(number) < exactly(minimum_);
}

bool NumberBounds::isAbove(const Value& number) const {
    return !maximum_.isAbsent() && exactly(number) > exactly(maximum_);
}

Value NumberBounds::nearest(const Value& number) const {
    if (isBelow(number)) return minimum_;
    return isAbove(number) ? maximum_ : number;
}

Value NumberBounds::fallback() const {
    if (!minimum_.isAbsent()) return minimum_;
    return maximum_.isAbsent() ? Value(0) : maximum_;
}

}  // namespace QZCore
