#include "terminal.h"

#include <algorithm>
#include <cmath>

#include "QZCore/color/color_bytes.h"
#include "QZCore/richtext/html.h"
#include "stand_ins.h"

namespace qznote {
namespace {

using namespace QZCore;

/// The codes of a run, each with a semicolon in front.
std::string colorCodes(std::string_view plane, ColorBytes color) {
    return ";" + std::string(plane) + ";2;" + std::to_string(color.red) + ";" +
           std::to_string(color.green) + ";" + std::to_string(color.blue);
}

/// The bytes of `color` on white paper: terminals know no opacity.
ColorBytes onPaper(const Color& color) {
    const double alpha = std::clamp(color.alphaComponent(), 0.0, 1.0);
    const ColorBytes bytes = colorBytes(color);
    const auto mix = [&](int byte) {
        return static_cast<int>(std::lround(byte * alpha + 255 * (1 - alpha)));
    };
    return {mix(bytes.red), mix(bytes.green), mix(bytes.blue)};
}

/// Black text takes the terminal's own colour, which may be light, unless it
/// stands on a background of the note's.
std::string codesOfColors(const TextAttributes& attributes) {
    const Color* background = attributes.backgroundColor();
    const bool hasBackground = background != nullptr && background->alphaComponent() > 0;
    const Color* foreground = attributes.foregroundColor();
    const ColorBytes text = foreground == nullptr ? ColorBytes{} : colorBytes(*foreground);
    std::string codes;
    if (hasBackground || text.red + text.green + text.blue > 0) codes += colorCodes("38", text);
    if (hasBackground) codes += colorCodes("48", onPaper(*background));
    return codes;
}

std::string codesOf(const TextAttributes& attributes) {
    const std::uint32_t traits = attributes.font() == nullptr ? 0 : attributes.font()->traits;
    std::string codes;
    if ((traits & kFontBold) != 0) codes += ";1";
    if ((traits & kFontItalic) != 0) codes += ";3";
    if (attributes.underlineStyle() != 0) codes += ";4";
    if (attributes.strikethroughStyle() != 0) codes += ";9";
    codes += codesOfColors(attributes);
    return codes.empty() ? codes : codes.substr(1);
}

/// The target of the link when a terminal can follow it: it stands for itself,
/// without a page around it, and is plain ASCII.
std::string targetOf(const TextAttributes& attributes) {
    const auto link = safeLink(attributes);
    const auto isPlain = [](char16_t unit) { return unit > u' ' && unit < 0x7F; };
    if (!link || schemeOf(*link).empty() || !std::ranges::all_of(*link, isPlain)) return {};
    return toUTF8(*link);
}

}  // namespace

void Terminal::switchTo(const TextAttributes& attributes) {
    const std::string codes = codesOf(attributes);
    if (codes != codes_ && !codes_.empty()) out_ += "\x1b[0m";
    if (codes != codes_ && !codes.empty()) out_ += "\x1b[" + codes + "m";
    codes_ = codes;
}

void Terminal::follow(std::string target) {
    if (target != target_) out_ += "\x1b]8;;" + target + "\x1b\\";
    target_ = std::move(target);
}

void Terminal::write(StringView text, const TextAttributes& attributes) {
    switchTo(attributes);
    follow(targetOf(attributes));
    out_ += toUTF8(withVisibleControls(text));
}

void Terminal::fillLine(const TextAttributes& attributes) {
    switchTo(attributes);
    out_ += "\x1b[K";
}

void Terminal::endLine() {
    switchTo({});
    follow({});
    out_ += '\n';
}

}  // namespace qznote
