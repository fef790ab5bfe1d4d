// The different attribute sets of a text. What is asked of a text as a whole
// often depends on them alone, however many runs there are.
#pragma once

#include <algorithm>
#include <vector>

#include "richtext/flat_text.h"

namespace QZCore {

/// Each set that a run has, once, in order of appearance. They belong to `text`.
[[nodiscard]] inline std::vector<const TextAttributes*> distinctSets(const FlatRuns& text) {
    std::vector<const TextAttributes*> sets;
    std::vector<bool> seen(text.palette.size(), false);
    for (const FlatRun& run : text.runs) {
        if (!seen[run.id]) sets.push_back(&text.palette.at(run.id));
        seen[run.id] = true;
    }
    return sets;
}

/// Whether all sets have an equal value under `name`, or all have none.
[[nodiscard]] inline bool haveSameValue(const std::vector<const TextAttributes*>& sets,
                                        StringView name) {
    const Value* first = sets.empty() ? nullptr : sets.front()->find(name);
    return std::ranges::all_of(sets, [&](const TextAttributes* set) {
        const Value* value = set->find(name);
        if (value == nullptr || first == nullptr) return value == first;
        return value == first || *value == *first;
    });
}

}  // namespace QZCore
