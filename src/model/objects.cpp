#include "QZCore/model/objects.h"

namespace QZCore {

Value copyOf(const Value& value) {
    const auto object = std::dynamic_pointer_cast<const CopyableObject>(value.object());
    return object == nullptr ? value.copy() : Value(object->copiedObject());
}

}  // namespace QZCore
