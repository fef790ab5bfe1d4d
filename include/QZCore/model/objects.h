// Objects of the model in values: getting them back, and copying them.
#pragma once

#include <memory>

#include "QZCore/export.h"
#include "QZCore/foundation/object.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// The object of class T, or of one derived from it, that `value` refers to;
/// an empty pointer when the value holds something else. The object is the one
/// that was put into the value, and can be changed through the pointer.
template <class T>
[[nodiscard]] std::shared_ptr<T> objectIn(const Value& value) {
    return std::const_pointer_cast<T>(std::dynamic_pointer_cast<const T>(value.object()));
}

/// An object of which copies can be made.
class QZ_EXPORT CopyableObject : public Object {
public:
    /// A copy of the object, of the object's own class.
    [[nodiscard]] virtual std::shared_ptr<const Object> copiedObject() const = 0;

    /// The same copy, which can be changed.
    [[nodiscard]] std::shared_ptr<const Object> mutableCopy() const final { return copiedObject(); }
};

/// A copy of `value` by its own copy operation: the copy of an object that has
/// copies, else `Value::copy`.
[[nodiscard]] QZ_EXPORT Value copyOf(const Value& value);

}  // namespace QZCore
