// Lets go of a value that may own more.
#pragma once

#include "QZCore/foundation/value.h"
#include "model/release.h"

namespace QZCore {

/// Makes `value` absent. What it was the last to refer to is destroyed without
/// recursion.
inline void releaseValue(Value& value) {
    if (value.kind() >= ValueKind::List) Release<Value>::later(std::move(value));
    value = Value();
}

}  // namespace QZCore
