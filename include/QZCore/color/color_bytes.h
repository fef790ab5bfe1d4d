// Colours as bytes, for files and terminals. May be called from any thread.
#pragma once

#include "QZCore/color/color.h"
#include "QZCore/export.h"

namespace QZCore {

/// Red, green and blue from 0 to 255.
struct ColorBytes {
    /// The red component.
    int red = 0;
    /// The green component.
    int green = 0;
    /// The blue component.
    int blue = 0;

    /// Exact comparison of all fields.
    friend bool operator==(const ColorBytes&, const ColorBytes&) = default;
};

/// The components of `color`, rounded and clamped; what is not a number counts
/// as 0.
[[nodiscard]] QZ_EXPORT ColorBytes colorBytes(const Color& color);

}  // namespace QZCore
