// Letters and their cases, as Unicode defines them and in no locale.
#pragma once

#include <utility>
#include <vector>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Whether `character` is a letter of any script: category L.
[[nodiscard]] bool isLetter(char32_t character);

/// The upper-case and title-case letters, categories Lu and Lt, as inclusive
/// bounds.
[[nodiscard]] std::vector<std::pair<char32_t, char32_t>> rangesOfUppercaseLetters();

/// The single lower-case form of `character`, or itself.
[[nodiscard]] char32_t lowercased(char32_t character);

/// `letter` as it begins a word: its title-case form, which may be several
/// letters.
[[nodiscard]] String capitalized(char32_t letter);

}  // namespace QZCore
