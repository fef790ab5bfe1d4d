// Arrays: access that takes any index, removal by identity, equality or class,
// and the operations of a stack.
//
// The operations take the array first; those that take it as `Array&` change
// it. Nothing throws: a bad index or an absent object leaves the array as it is
// and logs the call, and in a second line, "Stack trace: " and the functions
// that led to it. Two values are identical when they are the same scalar of the
// same kind or refer to the same shared thing (`Value::isIdentical`), equal by
// `==`. Operations on two arrays take time linear in both, as long as equal
// hashes are few. Different threads may read the same array at once.
#pragma once

#include <cstddef>
#include <type_traits>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

// ---- Safe access ------------------------------------------------------------

/// The element at `index`. When there is none, absent, and the log line
/// "Attempting to call objectAtIndex:INDEX with count:COUNT".
[[nodiscard]] QZ_EXPORT Value safeObjectAtIndex(const Array& array, std::size_t index);

/// Inserts `object` before the element at the index, or at the end when the
/// index is the count. Else logs "Attempting to call insertObject:atIndex with
/// a nil object" or "Attempting to call insertObject:atIndex:INDEX with
/// count:COUNT".
QZ_EXPORT void safeInsertObject(Array& array, Value object, std::size_t atIndex);

/// Replaces the element at `index`. Without an object or such an element, logs
/// "Attempting to call replaceObjectAtIndex with a nil object" or "Attempting
/// to call replaceObjectAtIndex:INDEX with count:COUNT".
QZ_EXPORT void safeReplaceObjectAtIndex(Array& array, std::size_t index, Value withObject);

/// Removes the element at `index`. When there is none, logs "Attempting to call
/// removeObjectAtIndex:INDEX with count:COUNT".
QZ_EXPORT void safeRemoveObjectAtIndex(Array& array, std::size_t index);

/// Exchanges two elements. When one of them is missing, logs "Attempting to
/// call exchangeObjectAtIndex:INDEX withObjectAtIndex:INDEX with count:COUNT".
QZ_EXPORT void safeExchangeObjectAtIndex(Array& array, std::size_t index,
                                         std::size_t withObjectAtIndex);

/// Does what a `safeInsertObject` of each object does, at the index and the
/// ones that follow. An object that cannot be inserted still takes up its
/// index. Linear in both counts.
QZ_EXPORT void insertObjectsFromArray(Array& array, Array objects, std::size_t atIndex);

// ---- Removing ---------------------------------------------------------------

/// Whether a value is of a class.
using ClassTest = bool (*)(const Value& value);

/// The test of the class T: String, Data, Date, URL, Array, Set or Dictionary
/// (mutable ones included), any arithmetic type for numbers and booleans of all
/// kinds, a type derived from Object, or a type whose values are boxed.
template <class T>
[[nodiscard]] bool isOfClass(const Value& value) {
    if constexpr (std::is_same_v<T, String>) {
        return value.string() != nullptr;
    } else if constexpr (std::is_same_v<T, Data>) {
        return value.data() != nullptr;
    } else if constexpr (std::is_same_v<T, Date>) {
        return value.date() != nullptr;
    } else if constexpr (std::is_same_v<T, URL>) {
        return value.url() != nullptr;
    } else if constexpr (std::is_same_v<T, Array>) {
        return value.array() != nullptr;
    } else if constexpr (std::is_same_v<T, Set>) {
        return value.set() != nullptr;
    } else if constexpr (std::is_same_v<T, Dictionary>) {
        return value.dictionary() != nullptr;
    } else if constexpr (std::is_arithmetic_v<T>) {
        return value.isNumber();
    } else if constexpr (std::is_base_of_v<Object, T>) {
        return dynamic_cast<const T*>(value.object().get()) != nullptr;
    } else {
        return value.boxedValue<T>() != nullptr;
    }
}

/// Removes every element that is identical to one of `objects`.
QZ_EXPORT void removeIdenticalObjectsInArray(Array& array, const Array& objects);

/// Removes every element that is equal to none of `objects`.
QZ_EXPORT void removeObjectsNotInArray(Array& array, const Array& objects);

/// Removes every element that is identical to none of `objects`.
QZ_EXPORT void removeIdenticalObjectsNotInArray(Array& array, const Array& objects);

/// Removes every element of the class: `removeObjectsOfClass(array,
/// isOfClass<String>)`.
QZ_EXPORT void removeObjectsOfClass(Array& array, ClassTest objectClass);

/// `array` without the elements that are equal to `object`.
[[nodiscard]] QZ_EXPORT Array arrayByRemovingObject(const Array& array, const Value& object);

/// `array` without the elements that are identical to `object`.
[[nodiscard]] QZ_EXPORT Array arrayByRemovingIdenticalObject(const Array& array,
                                                             const Value& object);

/// `array` without the elements that are equal to one of `objects`.
[[nodiscard]] QZ_EXPORT Array arrayByRemovingObjectsInArray(const Array& array,
                                                            const Array& objects);

/// `array` without the elements that are identical to one of `objects`.
[[nodiscard]] QZ_EXPORT Array arrayByRemovingIdenticalObjectsInArray(const Array& array,
                                                                     const Array& objects);

/// `array` without the elements that are identical to none of `objects`.
[[nodiscard]] QZ_EXPORT Array arrayByRemovingIdenticalObjectsNotInArray(const Array& array,
                                                                        const Array& objects);

/// `array` without the elements in `range`. When the range does not lie within
/// the array, the whole array, and the log line "Attempting to call
/// removeObjectsInRange:{LOCATION, LENGTH} with count:COUNT".
[[nodiscard]] QZ_EXPORT Array arrayByRemovingObjectsInRange(const Array& array, Range range);

/// `array` without the elements of the class.
[[nodiscard]] QZ_EXPORT Array arrayByRemovingObjectsOfClass(const Array& array,
                                                            ClassTest objectClass);

// ---- Finding ----------------------------------------------------------------

/// Whether an element is identical to `object`.
[[nodiscard]] QZ_EXPORT bool containsObjectIdenticalTo(const Array& array, const Value& object);

/// Whether an element is identical to one of `objects`. Never for no objects.
[[nodiscard]] QZ_EXPORT bool containsAnyObjectsIdenticalTo(const Array& array,
                                                           const Array& objects);

/// Whether for each of `objects` an element is identical to it. Always for no
/// objects.
[[nodiscard]] QZ_EXPORT bool containsAllObjectsIdenticalTo(const Array& array,
                                                           const Array& objects);

/// The index of the first element that is equal to each of `objects`, in
/// ascending order, each once. Objects that are not in the array have none.
[[nodiscard]] QZ_EXPORT std::vector<std::size_t> indexesOfObjects(const Array& array,
                                                                  const Array& objects);

// ---- The array as a stack ---------------------------------------------------

/// Adds `object` at the end. An absent object is refused as by
/// `safeInsertObject`.
QZ_EXPORT void push(Array& array, Value object);

/// Removes the last element and returns it; absent when the array is empty.
QZ_EXPORT Value pop(Array& array);

/// The last element; absent when the array is empty.
[[nodiscard]] QZ_EXPORT Value peek(const Array& array);

}  // namespace QZCore
