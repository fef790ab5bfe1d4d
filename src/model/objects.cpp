#include "QZCore/model/objects.h"

#include "QZCore/foundation/dictionary.h"

namespace QZCore {

Value copyOf(const Value& value) {
    if (const Array* elements = value.mutableArray()) return *elements;
    if (const Dictionary* entries = value.mutableDictionary()) return *entries;
    const auto object = std::dynamic_pointer_cast<const CopyableObject>(value.object());
    return object == nullptr ? value : Value(object->copiedObject());
}

}  // namespace QZCore
