#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "QZCore/platform/fonts.h"
#include "richtext/attribute_fixing.h"
#include "richtext/attribute_names.h"

namespace QZCore {
namespace {

/// Whether `character` joins the one before it: a combining mark, a joiner, a
/// variation selector, a skin tone. Such a character takes the font of the one
/// that it joins.
bool joinsPrevious(char32_t character) {
    return (character >= 0x300 && character <= 0x36F) || character == 0x200D ||
           (character >= 0x1AB0 && character <= 0x1AFF) ||
           (character >= 0x20D0 && character <= 0x20FF) ||
           (character >= 0xFE00 && character <= 0xFE0F) ||
           (character >= 0xFE20 && character <= 0xFE2F) ||
           (character >= 0x1F3FB && character <= 0x1F3FF) ||
           (character >= 0xE0100 && character <= 0xE01EF);
}

/// Numbers fonts, so that runs of one font share what is found out about it,
/// whatever else they carry.
class FontNumbers {
public:
    /// The number of `font`, given now if it had none.
    std::uint32_t operator()(const Font& font) {
        const auto next = static_cast<std::uint32_t>(fonts_.size());
        const auto [at, isNew] = numbers_.try_emplace(font, next);
        if (isNew) fonts_.push_back(font);
        return at->second;
    }

    [[nodiscard]] const Font& at(std::uint32_t number) const { return fonts_[number]; }

private:
    struct Hash {
        std::size_t operator()(const Font& font) const { return hashOf(font); }
    };

    std::unordered_map<Font, std::uint32_t, Hash> numbers_;
    std::vector<Font> fonts_;
};

/// For one font: the number of the font that each character takes.
class Substitutes {
public:
    Substitutes(std::uint32_t font, FontNumbers& fonts, const FontCatalog& catalog)
        : font_(font),
          keepsAscii_(catalog.showsAscii(fonts.at(font))),
          fonts_(fonts),
          catalog_(catalog) {}

    [[nodiscard]] std::uint32_t font() const { return font_; }

    /// Whether all ASCII characters keep the font.
    [[nodiscard]] bool keepsAscii() const { return keepsAscii_; }

    std::uint32_t fontFor(char32_t character) {
        const auto [at, isNew] = found_.try_emplace(character, font_);
        if (isNew) at->second = find(character);
        return at->second;
    }

private:
    [[nodiscard]] std::uint32_t find(char32_t character) const {
        const Font& font = fonts_.at(font_);
        if (catalog_.showsCharacter(font, character)) return font_;
        const auto substitute = catalog_.substituteFor(font, character);
        return substitute ? fonts_(*substitute) : font_;
    }

    std::uint32_t font_;
    bool keepsAscii_;
    FontNumbers& fonts_;
    const FontCatalog& catalog_;
    std::unordered_map<char32_t, std::uint32_t> found_;
};

/// The first position from `at` on, below `end`, whose unit is not ASCII.
std::size_t firstBeyondAscii(StringView text, std::size_t at, std::size_t end) {
    constexpr std::size_t kStep = 16;
    for (; end - at >= kStep; at += kStep) {
        char16_t all = 0;
        for (std::size_t i = 0; i < kStep; ++i) all = static_cast<char16_t>(all | text[at + i]);
        if (all >= 0x80) break;
    }
    while (at < end && text[at] < 0x80) ++at;
    return at;
}

class FontFixer {
public:
    FontFixer(FlatText& text, const FontCatalog& catalog) : text_(text), catalog_(catalog) {
        fixed_.reserve(text.runs.size());
    }

    void fix() {
        std::size_t start = 0;
        for (const FlatRun& run : text_.runs) {
            addRun(start, run);
            start = run.end;
        }
        if (changed_) text_.runs = std::move(fixed_);
    }

private:
    void addRun(std::size_t start, const FlatRun& run) {
        Substitutes* substitutes = substitutesFor(run.id);
        if (substitutes == nullptr) return appendRun(fixed_, run.end, run.id);
        const bool skipsAscii = substitutes->keepsAscii();
        const StringView text = text_.text;
        std::uint32_t id = run.id;
        while (start < run.end) {
            const std::size_t end = skipsAscii ? firstBeyondAscii(text, start, run.end) : start;
            appendRun(fixed_, static_cast<std::uint32_t>(end), run.id);
            if (end > start) id = run.id;
            if (end == run.end) return;
            const CodePoint point = codePointAt(text.substr(0, run.end), end);
            if (!joinsPrevious(point.value) || id == run.id) {
                id = idInFont(run.id, substitutes->font(), substitutes->fontFor(point.value));
            }
            changed_ |= id != run.id;
            start = end + point.length;
            appendRun(fixed_, static_cast<std::uint32_t>(start), id);
        }
    }

    /// The substitutes for the font of the attributes `id`; null when they have
    /// none.
    Substitutes* substitutesFor(std::uint32_t id) {
        if (id >= known_.size()) known_.resize(text_.palette.size());
        if (!known_[id]) known_[id] = substitutesFor(text_.palette.at(id).font());
        return *known_[id];
    }

    Substitutes* substitutesFor(const Font* font) {
        if (font == nullptr) return nullptr;
        if (font == lastFont_) return lastSubstitutes_;
        const std::uint32_t number = fonts_(*font);
        lastSubstitutes_ =
            &substitutes_.try_emplace(number, number, fonts_, catalog_).first->second;
        lastFont_ = font;
        return lastSubstitutes_;
    }

    /// The attributes `id`, whose font has the number `own`, in another font.
    std::uint32_t idInFont(std::uint32_t id, std::uint32_t own, std::uint32_t font) {
        if (font == own) return id;
        const std::uint64_t key = std::uint64_t{id} << 32 | font;
        const auto [at, isNew] = idsInFonts_.try_emplace(key, 0);
        if (isNew) {
            const TextAttributes before = text_.palette.at(id);
            at->second = text_.palette.idOf(
                before.withAttribute(attributeNames().font, Value::boxed(fonts_.at(font))));
        }
        return at->second;
    }

    FlatText& text_;
    const FontCatalog& catalog_;
    FontNumbers fonts_;
    std::unordered_map<std::uint32_t, Substitutes> substitutes_;  // by the font's number
    std::unordered_map<std::uint64_t, std::uint32_t> idsInFonts_;
    std::vector<std::optional<Substitutes*>> known_;  // by the attributes' number
    // Most sets share their font as an object.
    const Font* lastFont_ = nullptr;
    Substitutes* lastSubstitutes_ = nullptr;
    std::vector<FlatRun> fixed_;
    bool changed_ = false;
};

}  // namespace

void fixFonts(FlatText& text, const FontCatalog& catalog) { FontFixer(text, catalog).fix(); }

}  // namespace QZCore
