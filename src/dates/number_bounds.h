// The smallest and the largest number that may be typed.
#pragma once

#include "QZCore/foundation/value.h"

namespace QZCore {

/// Two bounds; one that is no number, or not-a-number, does not count.
class NumberBounds {
public:
    NumberBounds(const Value& minimum, const Value& maximum);

    [[nodiscard]] bool isBelow(const Value& number) const;
    [[nodiscard]] bool isAbove(const Value& number) const;

    /// The number, or the bound that it lies beyond.
    [[nodiscard]] Value nearest(const Value& number) const;

    /// What stands for a text without a number: the minimum, else the maximum,
    /// else 0.
    [[nodiscard]] Value fallback() const;

private:
    Value minimum_;
    Value maximum_;
};

}  // namespace QZCore
