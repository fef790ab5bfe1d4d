// The colours of the user interface. Their components are fixed, whatever the
// appearance of the desktop; the model tells them apart from every colour that
// is made from components.
#pragma once

#include <cstdint>

#include "QZCore/color/color.h"

namespace QZCore {

/// Makes the colours of the system model.
struct SystemColors {
    /// An opaque colour with the components 0xRRGGBB.
    static constexpr Color fromHex(std::uint32_t rgb) {
        const double red = static_cast<double>(rgb >> 16 & 0xFF) / 255.0;
        const double green = static_cast<double>(rgb >> 8 & 0xFF) / 255.0;
        const double blue = static_cast<double>(rgb & 0xFF) / 255.0;
        return {ColorModel::System, {red, green, blue, 1}, Color::Fixed::None};
    }
};

inline constexpr Color kTextColor = SystemColors::fromHex(0x000000);
inline constexpr Color kControlTextColor = SystemColors::fromHex(0x1E1E1E);
inline constexpr Color kDisabledControlTextColor = SystemColors::fromHex(0x9A9A9A);
inline constexpr Color kLinkColor = SystemColors::fromHex(0x1A5FB4);
inline constexpr Color kControlAccentColor = SystemColors::fromHex(0x2B7DE1);
inline constexpr Color kSystemRed = SystemColors::fromHex(0xD93A3F);
inline constexpr Color kSystemGreen = SystemColors::fromHex(0x3FA34D);
inline constexpr Color kSystemBlue = SystemColors::fromHex(0x2E6FD0);
inline constexpr Color kSystemOrange = SystemColors::fromHex(0xE8862E);
inline constexpr Color kSystemYellow = SystemColors::fromHex(0xE6B92A);
inline constexpr Color kSystemBrown = SystemColors::fromHex(0x93704A);
inline constexpr Color kSystemPink = SystemColors::fromHex(0xDB4C83);
inline constexpr Color kSystemPurple = SystemColors::fromHex(0x8A56B8);
inline constexpr Color kSystemGray = SystemColors::fromHex(0x87898E);
inline constexpr Color kSystemTeal = SystemColors::fromHex(0x3A9CA6);

}  // namespace QZCore
