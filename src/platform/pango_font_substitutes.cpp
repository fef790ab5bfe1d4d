#include "platform/pango_font_substitutes.h"

#include <algorithm>
#include <utility>

namespace QZCore {

FontSubstitutes::FontSubstitutes(const FontList& list, FcConfig* config)
    : list_(list), config_(config), orders_(std::make_unique<Order[]>(list.faces().size())) {}

const InstalledFace* FontSubstitutes::substituteFor(const InstalledFace& face,
                                                    char32_t character) const {
    Order& order = orders_[list_.placeOf(face)];
    std::call_once(order.found, [&] { order.faces = orderFor(face); });
    const auto covering = std::ranges::find_if(
        order.faces, [&](const InstalledFace* candidate) { return candidate->covers(character); });
    return covering == order.faces.end() ? nullptr : *covering;
}

const InstalledFace* FontSubstitutes::faceShowing(char32_t character,
                                                  const InstalledFace& face) const {
    if (face.covers(character)) return &face;
    const InstalledFace* substitute = substituteFor(face, character);
    return substitute == nullptr ? &face : substitute;
}

std::vector<const InstalledFace*> FontSubstitutes::orderFor(const InstalledFace& face) const {
    std::vector<const InstalledFace*> order;
    for (const InstalledFace& candidate : list_.faces()) order.push_back(&candidate);
    const std::vector<std::size_t> ranks = ranksFor(face);
    std::ranges::stable_sort(order, {}, [&](const InstalledFace* candidate) {
        return std::pair(distanceBetween(candidate->style(), face.style()),
                         ranks[list_.placeOf(*candidate)]);
    });
    return order;
}

/// For each face of the list its place in fontconfig's order for the family of
/// `face`.
std::vector<std::size_t> FontSubstitutes::ranksFor(const InstalledFace& face) const {
    std::vector<std::size_t> ranks(list_.faces().size(), list_.faces().size());
    const OwnedFcPattern pattern = patternForFamily(face.family, config_);
    FcResult result = FcResultNoMatch;
    const OwnedFcFontSet sorted(FcFontSort(config_, pattern.get(), FcFalse, nullptr, &result));
    std::size_t rank = 0;
    for (int i = 0; sorted != nullptr && i < sorted->nfont; ++i) {
        const auto file = fontFileOf(sorted->fonts[i]);
        const InstalledFace* listed = file ? list_.storedIn(*file) : nullptr;
        if (listed != nullptr) ranks[list_.placeOf(*listed)] = rank++;
    }
    return ranks;
}

}  // namespace QZCore
