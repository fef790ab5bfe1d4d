// Hashing for the library's own tables. Nothing stored depends on it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Mixes `value` into `seed` (the finalizer of the splitmix64 generator).
[[nodiscard]] constexpr std::size_t hashCombine(std::size_t seed, std::size_t value) {
    std::uint64_t mixed = seed ^ (value + 0x9E3779B97F4A7C15ULL + (seed << 6) + (seed >> 2));
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
    return static_cast<std::size_t>(mixed ^ (mixed >> 31));
}

/// The hash of a text's units.
[[nodiscard]] inline std::size_t hashText(StringView text) { return std::hash<StringView>{}(text); }

}  // namespace QZCore
