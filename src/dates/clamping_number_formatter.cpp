#include "QZCore/dates/number_formatter.h"
#include "dates/number_bounds.h"

namespace QZCore {
namespace {

Value nearestNumber(const Value& number, const NumberBounds& bounds) {
    return number.isAbsent() ? bounds.fallback() : bounds.nearest(number);
}

}  // namespace

bool QZNumberFormatter::getObjectValue(Value& object, StringView forString,
                                       String* /*errorDescription*/) const {
    if (!forString.empty()) {
        object = nearestNumber(numberFromString(forString), {minimum(), maximum()});
    }
    return true;
}

bool QZNumberFormatter::getObjectValue(Value& object, StringView forString, Range& range,
                                       String* /*errorDescription*/) const {
    if (!forString.empty()) {
        object = nearestNumber(numberInRange(forString, range), {minimum(), maximum()});
    }
    return true;
}

}  // namespace QZCore
