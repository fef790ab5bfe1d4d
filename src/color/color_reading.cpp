#include <array>

#include "QZCore/color/named_colors.h"
#include "QZCore/foundation/log.h"
#include "color/lower_case.h"
#include "color/stored_forms.h"

namespace QZCore {
namespace {

constexpr StringView kHexPrefix = u"rgba";

bool hasDecimalForm(StringView string) {
    return string.starts_with(kDecimalStart) && string.ends_with(u')');
}

}  // namespace

std::optional<Color> Color::colorForString(StringView string) {
    if (string.empty()) return std::nullopt;
    String storage;
    const StringView lowered = lowerCased(string, storage);
    if (lowered.starts_with(u'#') || lowered.starts_with(kHexPrefix))
        return colorForHexString(lowered);
    if (hasDecimalForm(lowered)) return colorForRGBString(lowered);
    if (const auto named = sharedNamedColors().find(lowered)) return named;
    logLine(String(u"bad color string: ").append(lowered));
    return blackColor();
}

std::optional<Color> Color::colorForValue(const Value& value) {
    if (const auto* color = value.boxedValue<Color>()) {
        logLine(u"colorForString called with a NSColor!");
        return *color;
    }
    const String* string = value.string();
    return string == nullptr ? std::nullopt : colorForString(*string);
}

Color Color::colorForRGBString(StringView string) {
    if (!hasDecimalForm(string)) return blackColor();
    StringView rest = string.substr(kDecimalStart.size());
    rest.remove_suffix(1);

    // A fifth part is only counted, so it may hold all parts that follow.
    std::array<StringView, 5> parts;
    std::size_t count = 0;
    for (bool more = true; more && count < parts.size(); ++count) {
        const std::size_t comma = rest.find(u',');
        parts[count] = rest.substr(0, comma);
        more = comma != StringView::npos;
        if (more) rest.remove_prefix(comma + 1);
    }

    if (count < 3) return blackColor();
    const double alpha = count == 4 ? doubleValue(parts[3]) : 1.0;
    return colorWithCalibrated255Red(intValue(parts[0]), intValue(parts[1]), intValue(parts[2]),
                                     alpha);
}

std::vector<Color> Color::convertColorStringsToColors(const std::vector<String>& strings) {
    std::vector<Color> colors;
    colors.reserve(strings.size());
    for (const String& string : strings) {
        if (const auto color = colorForString(string)) colors.push_back(*color);
    }
    return colors;
}

}  // namespace QZCore
