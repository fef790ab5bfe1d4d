// Deep copies of dictionaries and arrays.
//
// In a copy, every dictionary and array at any depth is a new mutable one.
// Keys stay as they are. A container that several others share becomes one copy
// for each place, so that changing one changes no other; only when such repeats
// amount to a million elements do further ones share a copy. A container
// that holds itself gives a copy that holds itself.
#pragma once

#include "QZCore/export.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// A copy in which everything else is copied as well (`Value::mutableCopy`). An
/// object that has no copies is left out, with its key.
[[nodiscard]] QZ_EXPORT Dictionary mutableCopyDeep(const Dictionary& dictionary);

/// A copy in which everything else is copied as well (`Value::mutableCopy`). An
/// object that has no copies is left out.
[[nodiscard]] QZ_EXPORT Array mutableCopyDeep(const Array& array);

/// A copy that holds the very same strings, objects and sets.
[[nodiscard]] QZ_EXPORT Dictionary mutableCopyDeepCollectionsOnly(const Dictionary& dictionary);

/// A copy that holds the very same strings, objects and sets.
[[nodiscard]] QZ_EXPORT Array mutableCopyDeepCollectionsOnly(const Array& array);

}  // namespace QZCore
