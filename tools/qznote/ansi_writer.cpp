#include "ansi_writer.h"

#include <algorithm>
#include <cmath>

#include "paragraphs.h"
#include "safe_link.h"
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

/// Control characters as the symbols that stand for them.
String withVisibleControls(StringView text) {
    constexpr char16_t kSymbols = 0x2400;
    constexpr char16_t kDelete = 0x7F;
    String visible(text);
    for (char16_t& unit : visible) {
        if (unit == u'\t' || !isControl(unit)) continue;
        unit = unit < u' '       ? static_cast<char16_t>(kSymbols + unit)
               : unit == kDelete ? u'\u2421'
                                 : u'\uFFFD';
    }
    return visible;
}

/// The output, and what is switched on at its end.
class Terminal {
public:
    void write(const String& text, const TextAttributes& attributes) {
        const std::string codes = codesOf(attributes);
        if (codes != codes_ && !codes_.empty()) out_ += "\x1b[0m";
        if (codes != codes_ && !codes.empty()) out_ += "\x1b[" + codes + "m";
        codes_ = codes;
        follow(targetOf(attributes));
        out_ += toUTF8(withVisibleControls(text));
    }

    void indent(std::size_t columns) { out_.append(columns, ' '); }

    void endLine() {
        if (!codes_.empty()) out_ += "\x1b[0m";
        codes_.clear();
        follow({});
        out_ += '\n';
    }

    [[nodiscard]] std::string take() { return std::move(out_); }

private:
    void follow(std::string target) {
        if (target != target_) out_ += "\x1b]8;;" + target + "\x1b\\";
        target_ = std::move(target);
    }

    std::string out_;
    std::string codes_;
    std::string target_;
};

/// The columns that stand for the indent of a paragraph.
std::size_t indentOf(const ParagraphStyle* style) {
    constexpr double kColumnWidth = 6;
    constexpr double kMostColumns = 40;
    if (style == nullptr || !(style->firstLineHeadIndent > 0)) return 0;
    return static_cast<std::size_t>(
        std::min(style->firstLineHeadIndent / kColumnWidth, kMostColumns));
}

}  // namespace

std::string ansiText(const RichText& text) {
    Terminal terminal;
    for (const Range paragraph : paragraphsOf(text.string())) {
        const TextAttributes first = text.attributesAtIndex(paragraph.location);
        if (paragraph.length > 0) terminal.indent(indentOf(first.paragraphStyle()));
        for (const TextRunView run : text.runs(paragraph)) {
            terminal.write(withImagesNamed(text.string(run.range), run.attributes), run.attributes);
        }
        terminal.endLine();
    }
    return terminal.take();
}

}  // namespace qznote
