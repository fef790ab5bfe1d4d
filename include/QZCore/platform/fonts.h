// Fonts: what the library needs to know of the installed ones.
//
// A `Font` is a plain value that names a face at a size. A `FontCatalog` lists
// the families that are installed, with their faces, measures texts and knows
// which characters a font shows. The catalogue of the machine is the default;
// `makeInMemoryFontCatalog` makes one up that is the same everywhere.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// Trait bits of a font, and the two values that ask a conversion to take a
/// trait away.
enum FontTraits : std::uint32_t {
    kFontItalic = 1,
    kFontBold = 2,
    kFontUnbold = 4,
    kFontUnitalic = 16777216,
};

/// The weight of a regular face on the scale from 0 (thinnest) to 15. Semibold
/// is 8, bold is 9, black is 12; a face has the bold trait from 8 on.
inline constexpr int kFontRegularWeight = 5;

/// The size in points that every operation takes in place of one that is not
/// positive and finite.
inline constexpr double kFontDefaultSize = 12;

/// A face at a size.
struct Font {
    /// The family, as "DejaVu Sans".
    String familyName = {};
    /// The unique name of the face, as "DejaVuSans-Bold", by which it can be
    /// looked up again.
    String faceName = {};
    /// The size in points.
    double pointSize = kFontDefaultSize;
    /// The sum of `kFontItalic` and `kFontBold` as far as they apply.
    std::uint32_t traits = 0;
    /// The weight from 0 to 15; 5 is regular.
    int weight = kFontRegularWeight;

    /// Exact comparison of all fields.
    friend bool operator==(const Font&, const Font&) = default;
};

/// A number that is the same for equal fonts.
[[nodiscard]] QZ_EXPORT std::size_t hashOf(const Font& font);
/// The face name and the size.
[[nodiscard]] QZ_EXPORT String descriptionOf(const Font& font);

/// One face of a family.
struct FontMember {
    /// The unique name, unique among all installed faces.
    String uniqueName;
    /// The full name for people, as "DejaVu Sans Bold".
    String fullName;
    /// The name within the family, as "Regular" or "Bold Italic".
    String faceName;
    /// The sum of `kFontItalic` and `kFontBold` as far as they apply.
    std::uint32_t traits = 0;
    /// The weight from 0 to 15; 5 is regular.
    int weight = kFontRegularWeight;

    /// Exact comparison of all fields.
    friend bool operator==(const FontMember&, const FontMember&) = default;
};

/// The fonts that are installed. Every operation may be called from any
/// thread; none logs. Names are compared exactly.
///
/// A `Font` that is not installed stands for the nearest one that is: the face
/// of its family next to it in traits and weight or, where the family is
/// missing too, that face of the user's family.
class QZ_EXPORT FontCatalog {
public:
    virtual ~FontCatalog();

    /// The names of all families, sorted by code unit, each once.
    [[nodiscard]] virtual std::vector<String> availableFamilies() const = 0;

    /// The faces of `family` in a fixed order: faces of normal width first,
    /// among them the upright ones first, among those the regular one first.
    /// Empty when the family is not installed. Faces that would only be
    /// imitated (a slanted regular face, say) are not listed. Valid as long as
    /// the catalogue.
    [[nodiscard]] virtual const std::vector<FontMember>& membersOfFamily(
        StringView family) const = 0;

    /// The face whose unique name is `name` or else the one whose full name it
    /// is, at `size`; nothing when there is none.
    [[nodiscard]] virtual std::optional<Font> fontNamed(StringView name, double size) const = 0;

    /// The user's default font at `size`. Always a font, even where none is
    /// installed.
    [[nodiscard]] virtual Font userFont(double size) const = 0;

    /// The advance width of one line of text in points, without rounding;
    /// finite and never negative. Each character is measured in the font or,
    /// where the font does not show it, in its substitute. Control characters
    /// and line ends take no room, and an unpaired surrogate is measured as
    /// U+FFFD.
    [[nodiscard]] virtual double widthOfText(StringView text, const Font& font) const = 0;

    /// Whether the font itself has a glyph for `character`. Characters that
    /// need none count as shown by every font: control and format characters,
    /// variation selectors and other ignorable ones, line and paragraph
    /// separators, and U+FFFC, which stands for an attachment. Surrogates and
    /// values beyond U+10FFFF are shown by none. Takes no lock, and no longer
    /// than to look the font's name up.
    [[nodiscard]] virtual bool showsCharacter(const Font& font, char32_t character) const = 0;

    /// Whether `showsCharacter` holds for all ASCII characters. Asks for each
    /// of them; a catalogue that can tell at once should.
    [[nodiscard]] virtual bool showsAscii(const Font& font) const;

    /// A font of the same size, as near as possible in traits and weight, that
    /// shows `character`: `font` itself when it does; nothing when no
    /// installed font does.
    [[nodiscard]] virtual std::optional<Font> substituteFor(const Font& font,
                                                            char32_t character) const = 0;
};

/// The catalogue that the library uses: the machine's own fonts where the
/// library was built with them, else the made-up one, unless the application
/// has set another.
[[nodiscard]] QZ_EXPORT std::shared_ptr<const FontCatalog> sharedFontCatalog();

/// Makes `catalog` the one that the library uses; an empty pointer brings the
/// default back. Returns the one that was set before, empty for the default.
QZ_EXPORT std::shared_ptr<const FontCatalog> setSharedFontCatalog(
    std::shared_ptr<const FontCatalog> catalog);

/// A family of a made-up catalogue.
struct InMemoryFontFamily {
    /// Its name.
    String name;
    /// Its faces, in the order in which they are listed.
    std::vector<FontMember> members;
    /// The advance of every code point at a size of 1 point, whether its faces
    /// show it or not; characters that need no glyph take no room.
    double advance = 0.5;
    /// The code points that its faces show, as inclusive bounds; all of them
    /// when empty.
    std::vector<std::pair<char32_t, char32_t>> coverage = {};
};

/// Makes a catalogue of the given families, the first of which is the user's.
/// A family without faces is left out, and so is one whose name came before.
/// Substitutes are sought in the given order.
///
/// Where that leaves none it holds this selection, in this order:
///
/// | Family  | Faces (weight)                                         | Advance |
/// |---------|--------------------------------------------------------|---------|
/// | Sans    | Regular (5), Bold (9), Italic (5), Bold Italic (9)     | 0.5     |
/// | Serif   | Regular (5), Bold (9), Italic (5), Bold Italic (9)     | 0.4375  |
/// | Mono    | Regular (5), Bold (9), Italic (5), Bold Italic (9)     | 0.625   |
/// | Plain   | Regular (5)                                            | 0.5     |
/// | Heavy   | Regular (5), Semibold (8), Bold Italic (9)             | 0.5625  |
/// | Grotesk | Regular (5), Demibold (8), Black (12), Oblique (5)     | 0.5     |
/// | Symbols | Regular (5)                                            | 1.25    |
///
/// The unique name of a face is the family and the face name with its spaces
/// taken out, joined by a hyphen ("Sans-BoldItalic"); the full name is both
/// joined by a space ("Sans Bold Italic"), except that the full name of the one
/// face of Plain is "Plain". Oblique faces have the italic trait.
///
/// Symbols alone shows U+2600 to U+27BF and U+1F000 to U+1FAFF, and shows
/// nothing else. All other families show the rest of U+0000 to U+FFFF. So
/// U+20000, say, is shown by no font.
[[nodiscard]] QZ_EXPORT std::shared_ptr<const FontCatalog> makeInMemoryFontCatalog(
    std::vector<InMemoryFontFamily> families = {});

}  // namespace QZCore
