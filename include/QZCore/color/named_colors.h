// The fixed colours that have a name, by name and by colour.
//
// There are 26. No two of them are equal, so each name has its colour and each
// colour its name. The names are stored in documents; they never change. Both
// tables are constant; they may be read from any thread.
#pragma once

#include <cstddef>
#include <optional>

#include "QZCore/color/color.h"
#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A name and its colour.
struct NamedColor {
    /// The name, as it is printed.
    StringView name;
    /// What the name reads as.
    Color color;
};

/// The fixed colours by name: `Color::sharedNamedColors`.
class QZ_EXPORT NamedColors {
public:
    /// The colour of `name`, in its exact spelling: capitals count.
    [[nodiscard]] std::optional<Color> find(StringView name) const;

    /// The number of names.
    [[nodiscard]] std::size_t count() const;
    /// The first row, in alphabetical order of the names.
    [[nodiscard]] const NamedColor* begin() const;
    /// The end of the rows.
    [[nodiscard]] const NamedColor* end() const;
};

/// The names of the fixed colours: `Color::sharedNamedColorsReversed`.
class QZ_EXPORT NamedColorsReversed {
public:
    /// The name of the fixed colour that equals `color`; valid for ever.
    [[nodiscard]] std::optional<StringView> find(const Color& color) const;

    /// The number of colours.
    [[nodiscard]] std::size_t count() const;
};

}  // namespace QZCore
