// Sets of characters.
//
// A set holds code points, unpaired surrogates among them, and does not change
// after it was made. The predefined sets are built on first use and live as
// long as the process. Every function may be called from any thread.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// The code points from `first` to `last`, both included; none when `last` is
/// the smaller one.
struct CharacterRange {
    /// The smallest code point.
    char32_t first = 0;
    /// The largest code point.
    char32_t last = 0;
};

/// An immutable set of code points.
class QZ_EXPORT CharacterSet {
public:
    // ---- Making ----

    /// The empty set.
    CharacterSet() = default;
    /// The characters of `string`; a surrogate pair counts as one.
    [[nodiscard]] static CharacterSet charactersInString(StringView string);
    /// The characters of all `ranges`, which may overlap.
    [[nodiscard]] static CharacterSet charactersInRanges(std::vector<CharacterRange> ranges);

    // ---- Predefined sets ----

    /// The characters for which `isWhitespace` is true.
    [[nodiscard]] static const CharacterSet& whitespace();
    /// The characters for which `isNewline` is true.
    [[nodiscard]] static const CharacterSet& newlines();
    /// The characters for which `isWhitespaceOrNewline` is true.
    [[nodiscard]] static const CharacterSet& whitespaceAndNewlines();
    /// Upper-case and title-case letters: the Unicode categories Lu and Lt.
    [[nodiscard]] static const CharacterSet& uppercaseLetters();

    // ---- Asking ----

    /// Whether `character` is in the set.
    [[nodiscard]] bool contains(char32_t character) const {
        if (character < kIndexed) return (index_[character / 64] >> (character % 64) & 1U) != 0;
        return containsBeyondIndex(character);
    }

private:
    [[nodiscard]] bool containsBeyondIndex(char32_t character) const;

    static constexpr char32_t kIndexed = 256;
    // Sorted and disjoint, with at least one character between two of them.
    std::vector<CharacterRange> ranges_;
    // One bit for each of the first characters.
    std::array<std::uint64_t, kIndexed / 64> index_{};
};

/// The hexadecimal digits, "1234567890abcdefABCDEF".
[[nodiscard]] QZ_EXPORT const CharacterSet& hexCharacterSet();

}  // namespace QZCore
