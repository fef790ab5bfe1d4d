// FontManager: fonts converted into each other, and stored styles into
// attributes.
//
// Conversions never fail: what a family or the installed fonts cannot give
// leaves the font as it is. A manager may be used from any thread.
#pragma once

#include <memory>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/platform/fonts.h"
#include "QZCore/richtext/font_attributes.h"
#include "QZCore/richtext/text_attributes.h"

namespace QZCore {

/// Fonts and styles over one catalogue of installed fonts.
class QZ_EXPORT FontManager {
public:
    /// A manager of the fonts of `catalog`; of the one that the library uses
    /// when it is empty.
    explicit FontManager(std::shared_ptr<const FontCatalog> catalog);

    /// A manager of the catalogue that the library uses.
    [[nodiscard]] static FontManager shared();

    // ---- Fonts ----

    /// Whether a family of exactly this name is installed.
    [[nodiscard]] bool isFamilyInstalled(StringView family) const;
    /// The face with this unique or full name; nothing when there is none.
    [[nodiscard]] std::optional<Font> fontNamed(StringView name, double size) const;
    /// The user's default font. A size that is not greater than 0, or not
    /// finite, counts as 12 points.
    [[nodiscard]] Font userFont(double size) const;
    /// The catalogue's width of `text`, in points.
    [[nodiscard]] double widthOfText(StringView text, const Font& font) const;

    // ---- Conversions ----

    /// The member of `family` that is nearest to `font` in traits, then in
    /// weight. Unchanged when the family is not installed.
    [[nodiscard]] Font convertFontToFamily(const Font& font, StringView family) const;
    /// The face of that unique or full name at the size of `font`. Unchanged
    /// when there is none.
    [[nodiscard]] Font convertFontToFace(const Font& font, StringView faceName) const;
    /// The same face at `size` points. Unchanged when the size is not greater
    /// than 0, or not finite.
    [[nodiscard]] Font convertFontToSize(const Font& font, double size) const;
    /// The member of the font's family that differs in one trait only:
    /// `kFontBold` and `kFontItalic` add it, `kFontUnbold` and `kFontUnitalic`
    /// take it away; a sum changes several. Among several members the one of
    /// the nearest weight, for a change of boldness nearest to bold or regular.
    /// Unchanged when the family has no such member.
    [[nodiscard]] Font convertFontToHaveTrait(const Font& font, std::uint32_t traits) const;
    /// The next lighter member of the font's family with the same slant.
    /// Unchanged when there is none.
    [[nodiscard]] Font convertFontToLighterWeight(const Font& font) const;

    /// Whether the font's family has a face for one trait, told by the face
    /// names alone: `kFontBold` asks for exactly "Bold", "Black" or "Demibold",
    /// `kFontItalic` for exactly "Italic" or "Oblique". A family whose only
    /// bold faces have other names, "Semibold" or "Bold Italic", answers false:
    /// editors rely on that to offer a trait only where it can be had alone.
    /// Any other trait answers false.
    [[nodiscard]] bool canFont(const Font& font, std::uint32_t haveTrait) const;

    // ---- Stored styles ----

    /// The attributes of a stored style: font, foreground colour, underline,
    /// strikethrough and paragraph style always, a background only when the
    /// style has one that is not the clear colour.
    /// Bold and italic count only beside a family, and not beside a face that
    /// is installed. The shared preference "Style Font Size Min" keeps fonts
    /// from getting smaller. Values of another type are converted; what is then
    /// unusable counts as absent.
    [[nodiscard]] TextAttributes fontAttributesFromStyle(const FontAttributes& style) const;
    /// The same; nothing for no style.
    [[nodiscard]] std::optional<TextAttributes> fontAttributesFromStyle(
        const std::optional<FontAttributes>& style) const;
    /// The foreground colour of a stored style; black when it has none, or one
    /// that cannot be read.
    [[nodiscard]] Color colorFontAttributeFromStyle(const FontAttributes& style) const;
    /// The paragraph style of a stored style: the default one but for alignment
    /// and line height. A number that is no alignment counts as natural, a line
    /// height that is not finite as 0.
    [[nodiscard]] ParagraphStyle paragraphFontAttributeFromStyle(const FontAttributes& style) const;
    /// The stored style of attributes, each key only when there is something to
    /// store under it. Reading it back gives the same font (by its face name),
    /// colours, decorations and paragraph settings.
    [[nodiscard]] FontAttributes styleForAttributes(const TextAttributes& attributes) const;

private:
    [[nodiscard]] Font fontFromStyle(const FontAttributes& style) const;
    [[nodiscard]] Font fontWithStyledTraits(Font font, const FontAttributes& style) const;

    std::shared_ptr<const FontCatalog> catalog_;
};

}  // namespace QZCore
