#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

Value Value::copy() const {
    if (const Array* elements = mutableArray()) return *elements;
    if (const Dictionary* entries = mutableDictionary()) return *entries;
    return *this;
}

Value Value::mutableCopy() const {
    switch (kind()) {
        case ValueKind::Text:
            return *string();
        case ValueKind::Bytes:
            return *data();
        case ValueKind::URL:
            return *url();
        case ValueKind::List:
            return mutableArray(*array());
        case ValueKind::Set:
            return *set();
        case ValueKind::Dictionary:
            return mutableDictionary(*dictionary());
        case ValueKind::Object:
            return object()->mutableCopy();
        default:
            return *this;
    }
}

}  // namespace QZCore
