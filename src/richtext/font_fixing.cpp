#include <array>
#include <unordered_map>
#include <utility>

#include "QZCore/platform/fonts.h"
#include "richtext/attribute_fixing.h"

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

/// For one attribute set: the set that each character takes.
class Substitutions {
public:
    Substitutions(std::uint32_t id, const Font& font) : id_(id), font_(font) {}

    /// The number of the set for `character`.
    std::uint32_t idFor(char32_t character, AttributePalette& palette, const FontCatalog& catalog) {
        if (character < ascii_.size()) {
            if (ascii_[character] == kUnknown)
                ascii_[character] = find(character, palette, catalog);
            return ascii_[character];
        }
        const auto [at, isNew] = others_.try_emplace(character, kUnknown);
        if (isNew) at->second = find(character, palette, catalog);
        return at->second;
    }

    /// Whether all printing ASCII characters were found to keep their font.
    bool keepsAscii(AttributePalette& palette, const FontCatalog& catalog) {
        if (!asciiChecked_) {
            asciiChecked_ = true;
            for (char32_t character = 0; character < 0x80; ++character) {
                keepsAscii_ &= idFor(character, palette, catalog) == id_;
            }
        }
        return keepsAscii_;
    }

private:
    static constexpr std::uint32_t kUnknown = UINT32_MAX;

    std::uint32_t find(char32_t character, AttributePalette& palette, const FontCatalog& catalog) {
        if (catalog.showsCharacter(font_, character)) return id_;
        const auto substitute = catalog.substituteFor(font_, character);
        if (!substitute) return id_;
        const TextAttributes before = palette.at(id_);
        return palette.idOf(before.withAttribute(NSFontAttributeName, Value::boxed(*substitute)));
    }

    std::uint32_t id_;
    Font font_;
    std::array<std::uint32_t, 0x80> ascii_ = [] {
        std::array<std::uint32_t, 0x80> unknown{};
        unknown.fill(kUnknown);
        return unknown;
    }();
    std::unordered_map<char32_t, std::uint32_t> others_;
    bool asciiChecked_ = false;
    bool keepsAscii_ = true;
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
    FontFixer(FlatText& text, const FontCatalog& catalog) : text_(text), catalog_(catalog) {}

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
        Substitutions* substitutions = substitutionsFor(run.id);
        if (substitutions == nullptr) return appendRun(fixed_, run.end, run.id);
        const bool skipsAscii = substitutions->keepsAscii(text_.palette, catalog_);
        const StringView text = text_.text;
        std::uint32_t id = run.id;
        while (start < run.end) {
            const std::size_t end = skipsAscii ? firstBeyondAscii(text, start, run.end) : start;
            appendRun(fixed_, static_cast<std::uint32_t>(end), run.id);
            if (end > start) id = run.id;
            if (end == run.end) return;
            const CodePoint point = codePointAt(text.substr(0, run.end), end);
            if (!joinsPrevious(point.value) || id == run.id) {
                id = substitutions->idFor(point.value, text_.palette, catalog_);
            }
            changed_ |= id != run.id;
            start = end + point.length;
            appendRun(fixed_, static_cast<std::uint32_t>(start), id);
        }
    }

    /// The substitutions for the attributes `id`; null when they have no font.
    Substitutions* substitutionsFor(std::uint32_t id) {
        const auto known = known_.find(id);
        if (known != known_.end()) return &known->second;
        const Font* font = text_.palette.at(id).font();
        if (font == nullptr) return nullptr;
        return &known_.try_emplace(id, id, *font).first->second;
    }

    FlatText& text_;
    const FontCatalog& catalog_;
    std::unordered_map<std::uint32_t, Substitutions> known_;
    std::vector<FlatRun> fixed_;
    bool changed_ = false;
};

}  // namespace

void fixFonts(FlatText& text, const FontCatalog& catalog) { FontFixer(text, catalog).fix(); }

}  // namespace QZCore
