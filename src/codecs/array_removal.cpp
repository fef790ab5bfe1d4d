#include <algorithm>
#include <iterator>

#include "QZCore/codecs/arrays.h"
#include "codecs/value_sets.h"

namespace QZCore {
namespace {

/// Removes the elements that `goes` is true of, asked from the end to the start.
template <class Predicate>
void removeFromTheEnd(Array& array, Predicate goes) {
    const auto kept = std::remove_if(array.rbegin(), array.rend(), goes);
    array.erase(array.begin(), kept.base());
}

template <class Sameness>
void removeWhatIsNotIn(Array& array, const Array& objects) {
    const ValueSet<Sameness> kept(objects);
    removeFromTheEnd(array, [&](const Value& element) { return !kept.contains(element); });
}

template <class Predicate>
Array arrayWithout(const Array& array, Predicate goes) {
    Array remaining;
    std::ranges::remove_copy_if(array, std::back_inserter(remaining), goes);
    return remaining;
}

}  // namespace

void removeIdenticalObjectsInArray(Array& array, const Array& objects) {
    const ValueSet<ByIdentity> going(objects);
    std::erase_if(array, [&](const Value& element) { return going.contains(element); });
}

void removeObjectsNotInArray(Array& array, const Array& objects) {
    removeWhatIsNotIn<ByEquality>(array, objects);
}

void removeIdenticalObjectsNotInArray(Array& array, const Array& objects) {
    removeWhatIsNotIn<ByIdentity>(array, objects);
}

void removeObjectsOfClass(Array& array, ClassTest objectClass) {
    removeFromTheEnd(array, objectClass);
}

Array arrayByRemovingObject(const Array& array, const Value& object) {
    return arrayWithout(array, [&](const Value& element) { return element == object; });
}

Array arrayByRemovingIdenticalObject(const Array& array, const Value& object) {
    return arrayWithout(array, [&](const Value& element) { return element.isIdentical(object); });
}

Array arrayByRemovingObjectsInArray(const Array& array, const Array& objects) {
    const ValueSet<ByEquality> going(objects);
    return arrayWithout(array, [&](const Value& element) { return going.contains(element); });
}

Array arrayByRemovingIdenticalObjectsInArray(const Array& array, const Array& objects) {
    const ValueSet<ByIdentity> going(objects);
    return arrayWithout(array, [&](const Value& element) { return going.contains(element); });
}

Array arrayByRemovingIdenticalObjectsNotInArray(const Array& array, const Array& objects) {
    const ValueSet<ByIdentity> kept(objects);
    return arrayWithout(array, [&](const Value& element) { return !kept.contains(element); });
}

Array arrayByRemovingObjectsOfClass(const Array& array, ClassTest objectClass) {
    return arrayWithout(array, objectClass);
}

}  // namespace QZCore
