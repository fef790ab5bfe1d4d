#include <algorithm>
#include <iterator>

#include "QZCore/codecs/arrays.h"
#include "codecs/value_set.h"

namespace QZCore {
namespace {

/// Removes the elements that `goes` is true of. All are asked first, from the end
/// to the start, since the array may be the one that `goes` looks into.
template <class Predicate>
void removeFromTheEnd(Array& array, Predicate goes) {
    std::vector<bool> isGoing(array.size());
    for (std::size_t i = array.size(); i-- > 0;) isGoing[i] = goes(array[i]);
    std::size_t index = 0;
    std::erase_if(array, [&](const Value&) { return isGoing[index++]; });
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
    removeFromTheEnd(array, [&](const Value& element) { return going.contains(element); });
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
