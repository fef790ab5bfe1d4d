#include <algorithm>

#include "QZCore/codecs/arrays.h"
#include "codecs/value_set.h"

namespace QZCore {

bool containsObjectIdenticalTo(const Array& array, const Value& object) {
    return std::ranges::any_of(array,
                               [&](const Value& element) { return element.isIdentical(object); });
}

bool containsAnyObjectsIdenticalTo(const Array& array, const Array& objects) {
    const ValueSet<ByIdentity> wanted(objects);
    return std::ranges::any_of(array,
                               [&](const Value& element) { return wanted.contains(element); });
}

bool containsAllObjectsIdenticalTo(const Array& array, const Array& objects) {
    ValueSet<ByIdentity> wanted(objects);
    for (const Value& element : array) {
        if (wanted.left() == 0) return true;
        wanted.tickOff(element);
    }
    return wanted.left() == 0;
}

std::vector<std::size_t> indexesOfObjects(const Array& array, const Array& objects) {
    ValueSet<ByEquality> wanted(objects);
    std::vector<std::size_t> indexes;
    for (std::size_t i = 0; i < array.size() && wanted.left() > 0; ++i) {
        // Once found, an object has its first index.
        if (wanted.tickOff(array[i])) indexes.push_back(i);
    }
    return indexes;
}

}  // namespace QZCore
