#include "QZCore/color/gradient.h"

#include "QZCore/foundation/log.h"

namespace QZCore {
namespace {

std::vector<StringView> partsOf(StringView string) {
    std::vector<StringView> parts;
    for (std::size_t start = 0;;) {
        const std::size_t comma = string.find(u',', start);
        parts.push_back(string.substr(start, comma - start));
        if (comma == StringView::npos) return parts;
        start = comma + 1;
    }
}

/// What a gradient string holds, before it is known to pair up.
struct Reading {
    std::vector<StringView> colors;
    std::vector<double> locations;
};

/// Colours and locations take turns. A colour in the hex form has commas of its
/// own; one without a location behind it is left out, yet has had its turn.
Reading readingOf(StringView string) {
    constexpr std::size_t kPartsOfHexForm = 4;
    const std::vector<StringView> parts = partsOf(string);
    Reading reading;
    bool isColorNext = true;
    for (std::size_t i = 0; i < parts.size(); ++i, isColorNext = !isColorNext) {
        if (!isColorNext) {
            reading.locations.push_back(doubleValue(parts[i]));
        } else if (!parts[i].starts_with(u"rgba")) {
            reading.colors.push_back(parts[i]);
        } else if (i + kPartsOfHexForm < parts.size()) {
            const char16_t* start = parts[i].data();
            i += kPartsOfHexForm - 1;
            reading.colors.emplace_back(start, parts[i].data() + parts[i].size());
        }
    }
    return reading;
}

std::optional<Gradient> gradientOf(const Reading& reading) {
    if (reading.colors.empty() || reading.colors.size() != reading.locations.size())
        return std::nullopt;
    Gradient gradient;
    for (std::size_t i = 0; i < reading.colors.size(); ++i) {
        const auto color = Color::colorForString(reading.colors[i]);
        if (!color) return std::nullopt;
        gradient.stops.push_back({*color, reading.locations[i]});
    }
    return gradient;
}

}  // namespace

std::optional<Gradient> Gradient::gradientForString(StringView string) {
    if (string.empty()) return std::nullopt;
    auto gradient = gradientOf(readingOf(string));
    if (!gradient) logLine(String(u"Invalid gradient string: ").append(string));
    return gradient;
}

std::optional<String> Gradient::stringForGradient() const {
    String string;
    for (const GradientStop& stop : stops) {
        const String color = stop.color.stringForColor();
        const String location = fixedString(stop.location, 6);
        if (color.empty() || location.empty()) {
            logLine(u"Unable to convert an invalid gradient to a string");
            return std::nullopt;
        }
        if (!string.empty()) string += u',';
        string.append(color).append(1, u',').append(location);
    }
    return string;
}

std::optional<String> Gradient::stringForGradient(const Gradient& gradient) {
    return gradient.stringForGradient();
}

}  // namespace QZCore
