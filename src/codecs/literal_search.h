// Search for a text unit by unit, in time linear in both lengths.
#pragma once

#include <cstddef>
#include <vector>

#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// Walks through the occurrences of `pattern` in `text` (the method of Knuth,
/// Morris and Pratt). Both must outlive the search.
class LiteralSearch {
public:
    LiteralSearch(StringView text, StringView pattern);

    /// Where the next occurrence starts; `kNotFound` when there is none, and
    /// always for an empty pattern. Occurrences may overlap.
    std::size_t next();

    /// Makes the next occurrence start behind the one found last.
    void skipOverlaps() { matched_ = 0; }

private:
    void findBorders();

    StringView text_;
    StringView pattern_;
    // The length of the longest proper end of the first i + 1 units of the
    // pattern that the pattern also starts with.
    std::vector<std::size_t> borders_;
    std::size_t at_ = 0;
    std::size_t matched_ = 0;
};

/// `text` with every occurrence of `pattern`, from the left and without
/// overlaps, replaced by `replacement`.
[[nodiscard]] String replacingOccurrences(StringView text, StringView pattern,
                                          StringView replacement);

}  // namespace QZCore
