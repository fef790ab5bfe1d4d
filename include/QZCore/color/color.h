// Color: a colour with alpha, and the short strings that colours are stored as.
//
// Components run from 0 to 1 and are not clamped. A colour remembers the model
// that it was made in: two colours are equal when model, components and alpha
// are. A few fixed colours (clear, white, black) are known by identity besides:
// copies of them keep it, colours that merely have the same components lack it.
//
// Reading never fails: what is no colour reads as black. Printing consults the
// shared preferences. Every function may be called from any thread.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

class MaterialColors;
class NamedColors;
class NamedColorsReversed;

/// How a colour was made. Part of its value: a grey made from a white level
/// and one made from three components are different colours.
enum class ColorModel : std::uint8_t {
    CalibratedWhite,  // one white level
    CalibratedRGB,    // device-independent red, green and blue
    DeviceRGB,        // red, green and blue of the output device
    System,           // a colour of the user interface, with fixed components
};

/// A colour. Black unless made otherwise.
class QZ_EXPORT Color {
public:
    // ---- Making ----

    /// The black colour itself.
    constexpr Color() : fixed_(Fixed::Black) {}

    /// A grey: all three components are `white`.
    [[nodiscard]] static constexpr Color colorWithCalibratedWhite(double white, double alpha) {
        return {ColorModel::CalibratedWhite, {white, white, white, alpha}, Fixed::None};
    }
    /// A device-independent colour.
    [[nodiscard]] static constexpr Color colorWithCalibratedRed(double red, double green,
                                                                double blue, double alpha) {
        return {ColorModel::CalibratedRGB, {red, green, blue, alpha}, Fixed::None};
    }
    /// A colour of the output device.
    [[nodiscard]] static constexpr Color colorWithDeviceRed(double red, double green, double blue,
                                                            double alpha) {
        return {ColorModel::DeviceRGB, {red, green, blue, alpha}, Fixed::None};
    }

    /// The same as `colorWithCalibratedRed` with components of 0 to 255.
    [[nodiscard]] static Color colorWithCalibrated255Red(double red, double green, double blue,
                                                         double alpha = 1.0);
    /// The same as `colorWithDeviceRed` with components of 0 to 255.
    [[nodiscard]] static Color colorWithDevice255Red(double red, double green, double blue,
                                                     double alpha = 1.0);
    /// The same as `colorWithCalibratedWhite` with a white level of 0 to 255.
    [[nodiscard]] static Color colorWithCalibrated255White(double white, double alpha = 1.0);

    /// The calibrated RGB colour of a hue, saturation and lightness. Hues of
    /// 0, 1 and every other whole number are red: hues wrap. Saturation and
    /// lightness outside 0 to 1 give components clamped to 0 to 1; what is not
    /// a number counts as 0. Lightness 0 is black at any saturation.
    [[nodiscard]] static Color colorWithHue(double hue, double saturation, double lightness,
                                            double alpha);

    // ---- Fixed colours ----

    /// The clear colour itself: black components, alpha 0.
    [[nodiscard]] static constexpr Color clearColor() {
        return {ColorModel::CalibratedRGB, {0, 0, 0, 0}, Fixed::Clear};
    }
    /// The white colour itself: white level 1.
    [[nodiscard]] static constexpr Color whiteColor() {
        return {ColorModel::CalibratedWhite, {1, 1, 1, 1}, Fixed::White};
    }
    /// The black colour itself: white level 0.
    [[nodiscard]] static constexpr Color blackColor() { return {}; }
    /// The default colour of text. It prints as black but equals no other
    /// colour, so that black text and text of no chosen colour can be told
    /// apart.
    [[nodiscard]] static Color textColor();
    /// The accent colour of controls.
    [[nodiscard]] static Color controlBlueColor();

    /// The fixed colours by name.
    [[nodiscard]] static const NamedColors& sharedNamedColors();
    /// The names of the fixed colours.
    [[nodiscard]] static const NamedColorsReversed& sharedNamedColorsReversed();

    // ---- The material palette ----

    /// The colours of the Material Design palette by shade.
    [[nodiscard]] static const MaterialColors& sharedMaterialColors();
    /// The colours of the shade `darkness`, "50" to "900" or "a100" to "a700" in
    /// exactly this spelling; valid for ever.
    [[nodiscard]] static std::optional<std::span<const Color>> colorPaletteWithMaterialDarkness(
        StringView darkness);

    /// A colour of a shade among `darknesses`, all of which have the same chance,
    /// as all colours of a shade have; of any shade when there is no list. No
    /// colour when the list is empty, or the shade that was drawn is none.
    [[nodiscard]] static std::optional<Color> randomMaterialColorAmongDarknesses(
        const std::optional<std::vector<String>>& darknesses);
    /// A colour of any shade.
    [[nodiscard]] static Color randomMaterialColor();

    // ---- Derived colours ----

    /// Whether a label on this fill is easier to read in black than in white:
    /// on light fills, and on those with an alpha below 0.2.
    [[nodiscard]] bool shouldUseBlackForLabel() const;
    /// Black or white, whichever is easier to read on this fill.
    [[nodiscard]] Color appropriateLabelColor() const;

    /// A calibrated colour of the same hue and alpha, the stronger and darker
    /// the further `factor` is above 1, the paler and lighter the further it is
    /// below. Factors outside 0 to 2 count as the nearer end. The colour itself
    /// for 1, and for what is not a number.
    [[nodiscard]] Color emboldenedColorByPercentage(float factor) const;

    // ---- Asking ----

    /// The model that the colour was made in.
    [[nodiscard]] constexpr ColorModel model() const { return model_; }
    /// The red component; of a grey, the white level.
    [[nodiscard]] constexpr double redComponent() const { return components_.red; }
    /// The green component; of a grey, the white level.
    [[nodiscard]] constexpr double greenComponent() const { return components_.green; }
    /// The blue component; of a grey, the white level.
    [[nodiscard]] constexpr double blueComponent() const { return components_.blue; }
    /// The opacity: 0 is transparent.
    [[nodiscard]] constexpr double alphaComponent() const { return components_.alpha; }

    /// Whether this is the clear colour itself. Any other colour with alpha 0
    /// is not.
    [[nodiscard]] bool isClearColor() const;
    /// Whether this is the white colour itself or, when the preference
    /// "isWhiteColor Compare Strings" is on, prints as white.
    [[nodiscard]] bool isWhiteColor() const;
    /// Whether this is the black colour itself or, when the preference
    /// "isBlackColor Compare Strings" is on, prints as black.
    [[nodiscard]] bool isBlackColor() const;

    /// Whether both colours print as the same string.
    [[nodiscard]] bool isEqualByString(const Color& other) const;

    /// Whether model, components and alpha are equal. The identity of the
    /// fixed colours does not count, and not-a-number equals nothing.
    friend constexpr bool operator==(const Color& a, const Color& b) {
        return a.model_ == b.model_ && a.components_ == b.components_;
    }

    /// Whether both are equal and either both or neither is the same fixed
    /// colour.
    [[nodiscard]] constexpr bool isIdenticalTo(const Color& other) const {
        return *this == other && fixed_ == other.fixed_;
    }

    // ---- Reading ----

    /// Reads any colour string: "#" and six hex digits, "rgba(...)" with hex
    /// components, "rgb(...)" with decimal ones, or a name. Case does not
    /// count. An empty string is no colour; an unreadable one is black and
    /// logged.
    ///
    /// The name is looked up in lower case, so that names with a capital
    /// letter ("darkGray", "systemRed") are never found and read as black,
    /// although `stringForColor` prints them. Deliberate: stored documents
    /// look the way they do because of it.
    [[nodiscard]] static std::optional<Color> colorForString(StringView string);

    /// Reads a value that should hold a colour string. A colour in its place
    /// is returned unchanged and logged; any other kind of value is no colour.
    template <std::same_as<Value> AnyValue>
    [[nodiscard]] static std::optional<Color> colorForString(const AnyValue& value) {
        return colorForValue(value);
    }

    /// Reads the hex digits of `string`, and after a third comma an alpha, which
    /// is 1 when there is none; both prefixes "#" and "rgba(" may be missing.
    /// Commas, closing parentheses and white space between digits are skipped,
    /// any other character ends them. Short forms are not expanded: "#abc" is
    /// "#000abc". Of more than six digits the last six count, and digits beyond
    /// the first 40 units do not count. Letters o read as zeros.
    [[nodiscard]] static Color colorForHexString(StringView string);

    /// Reads "rgb(red,green,blue)" or "rgb(red,green,blue,alpha)" with integers
    /// of 0 to 255, which are not clamped; a part without a number counts as 0,
    /// and of five parts or more the fourth is no alpha. Black when the string
    /// is not of this form.
    [[nodiscard]] static Color colorForRGBString(StringView string);

    /// Reads each string by `colorForString` and leaves out empty ones.
    [[nodiscard]] static std::vector<Color> convertColorStringsToColors(
        const std::vector<String>& strings);

    // ---- Printing ----

    /// The string that the colour is stored as: "#rrggbb", the name of a fixed
    /// colour, or with another alpha than 1 "rgb(r,g,b,alpha)"; when the
    /// preference "Color Hex RGBA" is on, "rgba(rr,gg,bb,alpha)" instead.
    [[nodiscard]] String stringForColor() const;
    /// The string of a colour; no string for no colour.
    [[nodiscard]] static std::optional<String> stringForColor(const std::optional<Color>& color);

    /// Prints each colour by `stringForColor`.
    [[nodiscard]] static std::vector<String> convertColorsToColorStrings(
        const std::vector<Color>& colors);

    /// What the clear colour prints as.
    [[nodiscard]] static String clearColorAsString();
    /// What the white colour prints as.
    [[nodiscard]] static String whiteColorAsString();
    /// What the black colour prints as.
    [[nodiscard]] static String blackColorAsString();

private:
    friend struct SystemColors;

    /// Which fixed colour this is, if any.
    enum class Fixed : std::uint8_t { None, Clear, White, Black };

    struct Components {
        double red = 0;
        double green = 0;
        double blue = 0;
        double alpha = 1;

        friend constexpr bool operator==(const Components&, const Components&) = default;
    };

    constexpr Color(ColorModel model, Components components, Fixed fixed)
        : components_(components), model_(model), fixed_(fixed) {}

    static std::optional<Color> colorForValue(const Value& value);

    Components components_;
    ColorModel model_ = ColorModel::CalibratedWhite;
    Fixed fixed_;
};

/// The same for equal colours.
[[nodiscard]] QZ_EXPORT std::size_t hashOf(const Color& color);

/// The colour's string.
[[nodiscard]] QZ_EXPORT String descriptionOf(const Color& color);

}  // namespace QZCore
