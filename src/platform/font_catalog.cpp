#include "QZCore/platform/fonts.h"

#include <functional>
#include <mutex>
#include <utility>

#include "foundation/hash.h"

#if QZCORE_WITH_PANGO
#include "platform/machine_fonts.h"
#endif

namespace QZCore {
namespace {

std::shared_ptr<const FontCatalog> makeDefaultCatalog() {
#if QZCORE_WITH_PANGO
    return makeMachineFontCatalog();
#else
    return makeInMemoryFontCatalog();
#endif
}

/// Made when it is first needed: reading the list of fonts takes a while.
const std::shared_ptr<const FontCatalog>& defaultCatalog() {
    static const auto& catalog = *new std::shared_ptr<const FontCatalog>(makeDefaultCatalog());
    return catalog;
}

struct Current {
    std::mutex mutex;
    std::shared_ptr<const FontCatalog> catalog;
};

Current& current() {
    static Current& instance = *new Current;
    return instance;
}

}  // namespace

FontCatalog::~FontCatalog() = default;

bool FontCatalog::showsAscii(const Font& font) const {
    for (char32_t character = 0; character < 0x80; ++character) {
        if (!showsCharacter(font, character)) return false;
    }
    return true;
}

std::size_t hashOf(const Font& font) {
    std::size_t seed = hashText(font.familyName);
    seed = hashCombine(seed, hashText(font.faceName));
    seed = hashCombine(seed, std::hash<double>{}(font.pointSize));
    seed = hashCombine(seed, font.traits);
    return hashCombine(seed, static_cast<std::size_t>(font.weight));
}

String descriptionOf(const Font& font) {
    return font.faceName + u" " + shortestString(font.pointSize);
}

std::shared_ptr<const FontCatalog> sharedFontCatalog() {
    Current& state = current();
    {
        const std::lock_guard lock(state.mutex);
        if (state.catalog != nullptr) return state.catalog;
    }
    return defaultCatalog();
}

std::shared_ptr<const FontCatalog> setSharedFontCatalog(
    std::shared_ptr<const FontCatalog> catalog) {
    Current& state = current();
    const std::lock_guard lock(state.mutex);
    return std::exchange(state.catalog, std::move(catalog));
}

}  // namespace QZCore
