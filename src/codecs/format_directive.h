// The directives of a format.
#pragma once

#include <cstddef>
#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// One directive, as it is written.
struct FormatDirective {
    /// A number in a directive: written down, or taken from the arguments.
    struct Count {
        std::size_t number = 0;
        bool isArgument = false;
    };

    std::size_t length = 0;    // in the format, "%" included
    std::size_t position = 0;  // of the argument, counted from 1; 0 for the next
    bool isLeft = false;
    bool showsPlus = false;
    bool showsSpace = false;
    bool isAlternate = false;
    bool hasZeros = false;
    Count width = {};
    std::optional<Count> precision = {};
    char16_t conversion = 0;
};

/// Reads the directive at the start of `format`, which is its "%"; nothing when
/// it is none.
[[nodiscard]] std::optional<FormatDirective> readFormatDirective(StringView format);

}  // namespace QZCore
