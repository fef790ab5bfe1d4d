// How archived colours number their models.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "QZCore/color/color.h"

namespace QZCore {

/// The numbers of the models that are read. Stored in documents.
enum class LegacyColorSpace : std::uint8_t {
    CalibratedRGB = 1,
    DeviceRGB = 2,
    CalibratedWhite = 3,
    DeviceWhite = 4,
};

/// Whether the model has a white level in place of three components.
[[nodiscard]] constexpr bool isWhite(std::int64_t space) {
    return space == static_cast<int>(LegacyColorSpace::CalibratedWhite) ||
           space == static_cast<int>(LegacyColorSpace::DeviceWhite);
}

/// The colour of the model with the components, to which an alpha may be added;
/// nothing for another model, and when components are missing.
[[nodiscard]] inline std::optional<Color> legacyColorOf(std::int64_t space,
                                                        std::span<const double> components) {
    const std::size_t alphaAt = isWhite(space) ? 1 : 3;
    if (components.size() < alphaAt) return std::nullopt;
    const double alpha = components.size() > alphaAt ? components[alphaAt] : 1.0;
    if (isWhite(space)) return Color::colorWithCalibratedWhite(components[0], alpha);
    if (space == static_cast<int>(LegacyColorSpace::CalibratedRGB)) {
        return Color::colorWithCalibratedRed(components[0], components[1], components[2], alpha);
    }
    if (space != static_cast<int>(LegacyColorSpace::DeviceRGB)) return std::nullopt;
    return Color::colorWithDeviceRed(components[0], components[1], components[2], alpha);
}

}  // namespace QZCore
