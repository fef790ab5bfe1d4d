#include "palette_writer.h"

#include <vector>

#include "QZCore/color.h"
#include "stand_ins.h"

namespace qznote {
namespace {

using namespace QZCore;

constexpr std::string_view kPageStart = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Palette</title>
<style>
:root { color-scheme: light dark; }
body { margin: 2rem; font: 0.8rem/2.5 monospace; }
tr, td, th { text-align: center; }
td { min-width: 5.5rem; }
</style>
</head>
<body>
<table>
)";

constexpr std::string_view kPageEnd = "</table>\n</body>\n</html>\n";

/// "#rrggbb" of any colour, those with a name too.
std::string digitsOf(const Color& color) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const ColorBytes bytes = colorBytes(color);
    std::string text = "#";
    for (const int byte : {bytes.red, bytes.green, bytes.blue}) {
        text += kDigits[static_cast<std::size_t>(byte) >> 4];
        text += kDigits[static_cast<std::size_t>(byte) & 15];
    }
    return text;
}

std::string codeOf(std::string_view plane, const Color& color) {
    const ColorBytes bytes = colorBytes(color);
    return std::string(plane) + ";2;" + std::to_string(bytes.red) + ";" +
           std::to_string(bytes.green) + ";" + std::to_string(bytes.blue);
}

std::string swatch(const Color& color, ResultFormat format) {
    const std::string digits = digitsOf(color);
    const Color label = color.appropriateLabelColor();
    if (format == ResultFormat::Html) {
        return "<td style=\"background:" + digits + ";color:" + digitsOf(label) + "\">" + digits +
               "</td>";
    }
    if (format == ResultFormat::Text) return " " + digits;
    return "\x1b[" + codeOf("48", color) + ";" + codeOf("38", label) + "m " + digits + " \x1b[0m";
}

std::string line(const MaterialShade& shade, ResultFormat format) {
    const std::string key = toUTF8(shade.key);
    const bool isHtml = format == ResultFormat::Html;
    constexpr std::size_t kLongestKey = 4;
    std::string text = isHtml ? "<tr><th>" + key + "</th>"
                              : std::string(kLongestKey - key.size(), ' ') + key + " ";
    for (const Color& color : shade.colors) text += swatch(color, format);
    return text + (isHtml ? "</tr>\n" : "\n");
}

}  // namespace

std::optional<std::string> paletteSwatches(std::string_view shade, ResultFormat format) {
    std::string lines;
    for (const MaterialShade& row : Color::sharedMaterialColors()) {
        if (shade.empty() || toUTF8(row.key) == shade) lines += line(row, format);
    }
    if (lines.empty()) return std::nullopt;
    if (format != ResultFormat::Html) return lines;
    return std::string(kPageStart) + lines + std::string(kPageEnd);
}

}  // namespace qznote
