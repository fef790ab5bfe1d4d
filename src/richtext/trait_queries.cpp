#include <unordered_map>

#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {
namespace {

/// Which fonts belong to a family that can have one trait. Each font object is
/// looked up once.
class TraitSupport {
public:
    explicit TraitSupport(std::uint32_t trait) : trait_(trait) {}

    /// False for no font.
    bool operator()(const Font* font) {
        if (font == nullptr) return false;
        const auto [known, isNew] = known_.try_emplace(font, false);
        if (isNew) known->second = fonts_.canFont(*font, trait_);
        return known->second;
    }

private:
    FontManager fonts_ = FontManager::shared();
    std::uint32_t trait_;
    std::unordered_map<const Font*, bool> known_;
};

}  // namespace

bool RichText::canApplyTrait(std::uint32_t trait, Range range) const {
    if (range.location >= length()) return false;
    TraitSupport supports(trait);
    if (range.length == 0) return supports(attributesAtIndex(range.location).font());
    for (const TextRunView run : runs(range)) {
        if (supports(run.attributes.font())) return true;
    }
    return false;
}

bool RichText::canApplyTrait(std::uint32_t trait) const {
    return canApplyTrait(trait, {0, length()});
}

bool RichText::doesHaveTrait(std::uint32_t trait, Range range) const {
    if (range.location >= length()) return false;
    if (range.length == 0) {
        const TextAttributes attributes = attributesAtIndex(range.location);
        const Font* font = attributes.font();
        return font != nullptr && (font->traits & trait) != 0;
    }
    TraitSupport supports(trait);
    bool has = false;
    for (const TextRunView run : runs(range)) {
        const Font* font = run.attributes.font();
        if (!supports(font)) continue;
        const bool runHas = (font->traits & trait) != 0;
        // A run without the trait counts only behind one that has it.
        if (has && !runHas) return false;
        has = runHas;
    }
    return has;
}

bool RichText::doesHaveTrait(std::uint32_t trait) const {
    return doesHaveTrait(trait, {0, length()});
}

}  // namespace QZCore
