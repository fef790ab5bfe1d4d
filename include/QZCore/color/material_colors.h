// The colours of the Material Design palette of 2014, by shade.
//
// A shade is a list of hues from red to blue grey: 19 of each plain shade, "50"
// to "900", and 16 of each accent shade, "a100" to "a700", which has no brown,
// grey and blue grey. The table is constant once made; it may be read from any
// thread.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A shade and its colours.
struct MaterialShade {
    /// The key: "50" or "a100", in lower case.
    StringView key;
    /// The colours, in the order of the hues.
    std::vector<Color> colors;
};

/// The palette: `Color::sharedMaterialColors`.
class QZ_EXPORT MaterialColors {
public:
    /// The colours of the shade `key`, in its exact spelling; valid for ever.
    [[nodiscard]] std::optional<std::span<const Color>> find(StringView key) const;

    /// The number of shades.
    [[nodiscard]] std::size_t count() const { return shades_.size(); }
    /// The first shade: plain ones come first, and light ones before dark ones.
    [[nodiscard]] const MaterialShade* begin() const { return shades_.data(); }
    /// The end of the shades.
    [[nodiscard]] const MaterialShade* end() const { return begin() + count(); }

private:
    friend class Color;

    explicit MaterialColors(std::vector<MaterialShade> shades) : shades_(std::move(shades)) {}

    std::vector<MaterialShade> shades_;
};

}  // namespace QZCore
