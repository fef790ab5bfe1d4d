// Hashed sets of values, by identity and by equality. They hold the values
// themselves, so that the array these came from may change meanwhile.
#pragma once

#include <cstddef>
#include <unordered_set>

#include "QZCore/foundation/value.h"

namespace QZCore {

/// Identity, as the hash and as the comparison of a hashed set.
struct ByIdentity {
    std::size_t operator()(const Value& value) const { return value.identityHash(); }
    bool operator()(const Value& a, const Value& b) const { return a.isIdentical(b); }
};

/// Equality, as the hash and as the comparison of a hashed set.
struct ByEquality {
    std::size_t operator()(const Value& value) const { return value.hash(); }
    bool operator()(const Value& a, const Value& b) const { return a == b; }
};

/// The different values of an array.
template <class Sameness>
class ValueSet {
public:
    explicit ValueSet(const Array& values) : values_(values.begin(), values.end(), values.size()) {}

    [[nodiscard]] bool empty() const { return values_.empty(); }
    [[nodiscard]] bool contains(const Value& value) const { return values_.contains(value); }
    /// Removes the value; returns whether it was there.
    bool take(const Value& value) { return values_.erase(value) > 0; }

private:
    std::unordered_set<Value, Sameness, Sameness> values_;
};

}  // namespace QZCore
