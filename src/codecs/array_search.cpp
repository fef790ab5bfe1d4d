#include <algorithm>

#include "QZCore/codecs/arrays.h"
#include "codecs/value_sets.h"

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
    ValueSet<ByIdentity> missing(objects);
    for (const Value& element : array) {
        if (missing.empty()) return true;
        missing.take(element);
    }
    return missing.empty();
}

std::vector<std::size_t> indexesOfObjects(const Array& array, const Array& objects) {
    ValueSet<ByEquality> wanted(objects);
    std::vector<std::size_t> indexes;
    for (std::size_t i = 0; i < array.size() && !wanted.empty(); ++i) {
        // Once found, an object has its first index.
        if (wanted.take(array[i])) indexes.push_back(i);
    }
    return indexes;
}

}  // namespace QZCore
