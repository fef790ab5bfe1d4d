// Values of CSS properties, as far as rich text can show them.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "QZCore/color.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// What a length is measured in. Absolute lengths are points: 0.75 of them are
/// one "px", so that the usual size of text in a browser, 16 px, is 12 points.
enum class CssUnit : std::uint8_t { Points, Em, RootEm, Percent, Number };

/// A number with its unit.
struct CssLength {
    double number = 0;
    CssUnit unit = CssUnit::Points;
};

/// The length, percentage or number that `text` is; nothing for anything else,
/// as a number that is not finite.
[[nodiscard]] std::optional<CssLength> cssLengthOf(StringView text);

/// The colour that `text` is: a name, "#rgb", "#rgba", "#rrggbb", "#rrggbbaa",
/// "rgb(...)" or "hsl(...)" with or without an alpha. Black is the black colour
/// itself. Nothing for anything else.
[[nodiscard]] std::optional<Color> cssColorOf(StringView text);

/// The parts of `text` between blanks, or between `separator` and blanks. What
/// stands in quotes or parentheses stays together; quotes are kept.
[[nodiscard]] std::vector<StringView> cssParts(StringView text, char16_t separator = u' ');

/// The first unit of `wanted` in `css` at or after `from` outside of quotes,
/// parentheses and brackets, or the length.
[[nodiscard]] std::size_t findInCss(StringView css, std::size_t from, StringView wanted);

/// `text` with the letters A to Z in lower case.
[[nodiscard]] String inAsciiLowerCase(StringView text);

}  // namespace QZCore
