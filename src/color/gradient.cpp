#include "QZCore/color/gradient.h"

#include "QZCore/foundation/log.h"

namespace QZCore {
namespace {

/// The first parts of `text`, `count` of them, with the commas between them; the
/// whole text where there are no more.
StringView firstParts(StringView text, int count) {
    std::size_t end = text.find(u',');
    while (--count > 0 && end != StringView::npos) end = text.find(u',', end + 1);
    return text.substr(0, end);
}

/// What a gradient string holds, before it is known to pair up.
struct Reading {
    std::vector<StringView> colors;
    std::vector<double> locations;
};

/// Colours and locations take turns. A colour in the hex form has commas of its
/// own; one without a location behind it is left out, yet has had its turn.
Reading readingOf(StringView string) {
    constexpr int kPartsOfHexForm = 4;
    Reading reading;
    bool isColorNext = true;
    for (std::size_t start = 0; start <= string.size(); isColorNext = !isColorNext) {
        const StringView rest = string.substr(start);
        StringView part = firstParts(rest, 1);
        if (!isColorNext) {
            reading.locations.push_back(doubleValue(part));
        } else if (!part.starts_with(u"rgba")) {
            reading.colors.push_back(part);
        } else if (const StringView whole = firstParts(rest, kPartsOfHexForm);
                   whole.size() < rest.size()) {
            part = whole;
            reading.colors.push_back(whole);
        }
        start += part.size() + 1;
    }
    return reading;
}

std::optional<Gradient> gradientOf(const Reading& reading) {
    if (reading.colors.empty() || reading.colors.size() != reading.locations.size())
        return std::nullopt;
    Gradient gradient;
    gradient.stops.reserve(reading.colors.size());
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
