// How callers say which property of a datum they mean.
#pragma once

#include <concepts>
#include <type_traits>

#include "QZCore/foundation/value.h"

namespace QZCore {

/// An accessor: a function or function object that takes a datum, never an
/// absent one, and returns the property's value, absent when it has none. The
/// selector refers to the accessor without keeping it, so it serves as an
/// argument only. An accessor must not change the tree that is being walked.
class PropertySelector {
public:
    /// The property that `accessor` reads.
    template <class Accessor>
    requires(std::is_object_v<Accessor> && !std::same_as<Accessor, PropertySelector> &&
             std::is_invocable_r_v<Value, const Accessor&, const Value&>)
        PropertySelector(const Accessor& accessor)
        : accessor_(&accessor), read_([](const void* held, const Value& datum) -> Value {
              return (*static_cast<const Accessor*>(held))(datum);
          }) {}

    /// The value of the property for `datum`.
    [[nodiscard]] Value operator()(const Value& datum) const { return read_(accessor_, datum); }

private:
    const void* accessor_;
    Value (*read_)(const void*, const Value&);
};

}  // namespace QZCore
