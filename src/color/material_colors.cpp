#include "QZCore/color/material_colors.h"

#include <stdlib.h>

#include <algorithm>

#include "color/material_table.h"

namespace QZCore {
namespace {

std::vector<MaterialShade> readShades() {
    std::vector<MaterialShade> shades;
    for (const MaterialRow& row : kMaterialRows) {
        MaterialShade shade{row.key, {}};
        for (const StringView string : row.colors) {
            if (const auto color = Color::colorForString(string)) shade.colors.push_back(*color);
        }
        shades.push_back(std::move(shade));
    }
    return shades;
}

/// One of `items`, of which there is at least one, each with equal chance.
template <class Items>
const auto& oneOf(const Items& items) {
    return items[arc4random_uniform(static_cast<std::uint32_t>(items.size()))];
}

}  // namespace

std::optional<std::span<const Color>> MaterialColors::find(StringView key) const {
    const auto shade = std::ranges::find(shades_, key, &MaterialShade::key);
    if (shade == shades_.end()) return std::nullopt;
    return shade->colors;
}

const MaterialColors& Color::sharedMaterialColors() {
    static const MaterialColors& table = *new MaterialColors(readShades());
    return table;
}

std::optional<std::span<const Color>> Color::colorPaletteWithMaterialDarkness(StringView darkness) {
    return sharedMaterialColors().find(darkness);
}

std::optional<Color> Color::randomMaterialColorAmongDarknesses(
    const std::optional<std::vector<String>>& darknesses) {
    if (!darknesses) return randomMaterialColor();
    if (darknesses->empty()) return std::nullopt;
    const auto palette = colorPaletteWithMaterialDarkness(oneOf(*darknesses));
    if (!palette) return std::nullopt;
    return oneOf(*palette);
}

Color Color::randomMaterialColor() { return oneOf(oneOf(sharedMaterialColors().shades_).colors); }

}  // namespace QZCore
