// The case of whole texts, as Unicode defines it and in no locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// How letters are to be written.
enum class LetterCase : std::uint8_t {
    Upper,
    Lower,
    Capitalized,  // the first letter of each word upper case, the others lower case
};

/// `text` in `letterCase`. It may be longer or shorter than before: each of
/// `positions`, which ascend and lie within the text, becomes the position of
/// the same place in the result. A text of 2^31 units and more is left alone.
[[nodiscard]] String textInCase(StringView text, LetterCase letterCase,
                                std::vector<std::size_t>& positions);

/// The same without positions.
[[nodiscard]] String textInCase(StringView text, LetterCase letterCase);

}  // namespace QZCore
