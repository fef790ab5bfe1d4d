// Insertions at any index, for all ordered lists.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

namespace QZCore {

/// Whether an object, which may be nothing, can be inserted into a list of
/// `count` elements. Logs when it cannot; the callers that the line names start
/// at `returnAddress`.
[[nodiscard]] bool canInsertObject(bool isObject, std::size_t index, std::size_t count,
                                   const void* returnAddress);

/// Inserts each object at `index` and the indexes that follow, as one by one
/// would, in linear time. `isObject` tells which ones are something.
template <class List, class IsObject>
void insertOneByOne(List& list, List objects, std::size_t index, IsObject isObject,
                    const void* returnAddress) {
    List inserted;
    inserted.reserve(list.size() + objects.size());
    auto rest = list.begin();  // indexes only grow, so what lies before one stays
    for (auto& object : objects) {
        while (inserted.size() < index && rest != list.end()) {
            inserted.push_back(std::move(*rest++));
        }
        const std::size_t count = inserted.size() + static_cast<std::size_t>(list.end() - rest);
        if (canInsertObject(isObject(object), index, count, returnAddress)) {
            inserted.push_back(std::move(object));
        }
        if (index < SIZE_MAX) ++index;
    }
    std::move(rest, list.end(), std::back_inserter(inserted));
    list = std::move(inserted);
}

}  // namespace QZCore
