// Runs of one delimiter character.
#pragma once

#include <cstddef>

#include "QZCore/foundation/text.h"
#include "foundation/unit_search.h"

namespace QZCore {

/// Equal units next to each other, as many as there are.
struct DelimiterRun {
    std::size_t start = 0;
    std::size_t end = 0;

    [[nodiscard]] std::size_t length() const { return end - start; }
};

/// The run that starts at `start`, which must be below the length of the text.
[[nodiscard]] inline DelimiterRun delimiterRunAt(StringView text, std::size_t start) {
    return {start, skipUnit(text, start + 1, text[start])};
}

}  // namespace QZCore
