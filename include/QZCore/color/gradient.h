// Gradients, and the strings that they are stored as.
//
// A gradient string names each colour and its location, all separated by commas:
// "#000000,0.000000,#ffffff,1.000000". Every function may be called from any
// thread.
#pragma once

#include <optional>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A colour and where it stands.
struct GradientStop {
    /// The colour.
    Color color;
    /// The place along the gradient, usually from 0 to 1; not checked.
    double location = 0;

    /// Whether colours and locations are equal.
    friend constexpr bool operator==(const GradientStop&, const GradientStop&) = default;
};

/// Colour stops in generic RGB, in the order in which they were given.
class QZ_EXPORT Gradient {
public:
    /// The stops. Their order is kept, whatever their locations are.
    std::vector<GradientStop> stops;

    /// Whether all stops are equal.
    friend bool operator==(const Gradient&, const Gradient&) = default;

    /// Reads a gradient string. Nothing for an empty one; nothing and the line
    /// "Invalid gradient string: STRING" in the log when colours and locations do
    /// not pair up or a colour is empty.
    ///
    /// Colours are read by `Color::colorForString`, so an unreadable one is black
    /// and logged; a location that is no number is 0. A colour that begins with
    /// "rgba" takes the three parts behind it, if a location follows them. One
    /// of the form "rgb(...)" does not: "rgb(r,g,b,alpha)", which translucent
    /// colours print as unless the preference "Color Hex RGBA" is on, reads as
    /// parts of its own. Deliberate: stored gradients are read that way.
    [[nodiscard]] static std::optional<Gradient> gradientForString(StringView string);

    /// The string that the gradient is stored as: the strings of its colours,
    /// and its locations with six decimals. Empty when there are no stops.
    /// Nothing, and the line "Unable to convert an invalid gradient to a string"
    /// in the log, when a colour or a location has no string.
    [[nodiscard]] std::optional<String> stringForGradient() const;
    /// The string of `gradient`.
    [[nodiscard]] static std::optional<String> stringForGradient(const Gradient& gradient);
};

}  // namespace QZCore
