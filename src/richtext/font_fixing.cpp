#include "richtext/font_fixing.h"

#include <deque>
#include <optional>
#include <utility>

#include "foundation/unit_search.h"
#include "richtext/attribute_names.h"

namespace QZCore {
namespace {

constexpr std::uint16_t kFirstBeyondAscii = 0x80;

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
        if (const auto known = numbers_.find(&font); known != numbers_.end()) return known->second;
        fonts_.push_back(font);
        const auto number = static_cast<std::uint32_t>(numbers_.size());
        numbers_.emplace(&fonts_.back(), number);
        return number;
    }

    [[nodiscard]] const Font& at(std::uint32_t number) const { return fonts_[number]; }

private:
    /// Fonts of equal content are one.
    struct SameFont {
        bool operator()(const Font* a, const Font* b) const { return *a == *b; }
        std::size_t operator()(const Font* font) const { return hashOf(*font); }
    };

    std::deque<Font> fonts_;  // never move
    std::unordered_map<const Font*, std::uint32_t, SameFont, SameFont> numbers_;
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

}  // namespace

class FontFixing::Impl {
public:
    explicit Impl(const FontCatalog& catalog) : catalog_(catalog) {}

    void fix(FlatText& text) {
        beyondAscii_ = findBeyondAscii(text.text, 0);
        fixed_.clear();
        fixed_.reserve(text.runs.size());
        changed_ = false;
        std::size_t start = 0;
        for (const FlatRun& run : text.runs) {
            if (keepsFont(start, run, text)) {
                appendRun(fixed_, run.end, run.id);
            } else {
                fixRun(start, run, text);
            }
            start = run.end;
        }
        if (changed_) std::swap(text.runs, fixed_);
    }

private:
    static std::size_t findBeyondAscii(StringView text, std::size_t from) {
        return findFirst(text, from, [](auto unit) { return unit >= kFirstBeyondAscii; });
    }

    /// Whether a run surely keeps its font: it has none or holds only ASCII
    /// characters, which the font shows. Asked for ever later runs.
    bool keepsFont(std::size_t start, const FlatRun& run, const FlatText& text) {
        const Substitutes* substitutes = substitutesFor(run.id, text.palette);
        if (substitutes == nullptr) return true;
        if (!substitutes->keepsAscii()) return false;
        if (beyondAscii_ < start) beyondAscii_ = findBeyondAscii(text.text, start);
        return beyondAscii_ >= run.end;
    }

    void fixRun(std::size_t start, const FlatRun& run, FlatText& flat) {
        Substitutes& substitutes = *substitutesFor(run.id, flat.palette);
        const StringView text = StringView(flat.text).substr(0, run.end);
        std::uint32_t id = run.id;
        while (start < run.end) {
            const std::size_t end = substitutes.keepsAscii() ? findBeyondAscii(text, start) : start;
            appendRun(fixed_, static_cast<std::uint32_t>(end), run.id);
            if (end > start) id = run.id;
            if (end == run.end) return;
            const CodePoint point = codePointAt(text, end);
            if (!joinsPrevious(point.value) || id == run.id) {
                id = idInFont(run.id, substitutes.font(), substitutes.fontFor(point.value),
                              flat.palette);
            }
            changed_ |= id != run.id;
            start = end + point.length;
            appendRun(fixed_, static_cast<std::uint32_t>(start), id);
        }
    }

    /// The substitutes for the font of the attributes `id`; null when they have
    /// none.
    Substitutes* substitutesFor(std::uint32_t id, const AttributePalette& palette) {
        if (id >= known_.size()) known_.resize(palette.size());
        if (!known_[id]) known_[id] = substitutesFor(palette.at(id).font());
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
    std::uint32_t idInFont(std::uint32_t id, std::uint32_t own, std::uint32_t font,
                           AttributePalette& palette) {
        if (font == own) return id;
        const std::uint64_t key = std::uint64_t{id} << 32 | font;
        const auto [at, isNew] = idsInFonts_.try_emplace(key, 0);
        if (isNew) {
            const TextAttributes before = palette.at(id);
            at->second = palette.idOf(
                before.withAttribute(attributeNames().font, Value::boxed(fonts_.at(font))));
        }
        return at->second;
    }

    const FontCatalog& catalog_;
    FontNumbers fonts_;
    std::unordered_map<std::uint32_t, Substitutes> substitutes_;  // by the font's number
    std::unordered_map<std::uint64_t, std::uint32_t> idsInFonts_;
    std::vector<std::optional<Substitutes*>> known_;  // by the attributes' number
    // Most sets share their font as an object.
    const Font* lastFont_ = nullptr;
    Substitutes* lastSubstitutes_ = nullptr;
    std::size_t beyondAscii_ = 0;  // the next unit that is not ASCII
    std::vector<FlatRun> fixed_;
    bool changed_ = false;
};

FontFixing::FontFixing(const FontCatalog& catalog) : impl_(std::make_unique<Impl>(catalog)) {}
FontFixing::~FontFixing() = default;

void FontFixing::fixFonts(FlatText& text) { impl_->fix(text); }

}  // namespace QZCore
