#include "platform/svg_size.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <memory>

namespace QZCore {
namespace {

struct ParserDeleter {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using Parser = std::unique_ptr<XML_ParserStruct, ParserDeleter>;

struct Unit {
    StringView name;
    double points;
};

/// The units of lengths, in points of which 96 are an inch. The ones that
/// depend on a font or a page are unknown here.
constexpr std::array kUnits{
    Unit{u"", 1},           Unit{u"px", 1},         Unit{u"pt", 96.0 / 72}, Unit{u"pc", 16},
    Unit{u"mm", 96 / 25.4}, Unit{u"cm", 96 / 2.54}, Unit{u"in", 96},
};

bool isUsable(double length) {
    constexpr double kLongest = 1e6;
    return length > 0 && length <= kLongest;
}

/// A length as "12.5mm" in points; nothing when it is unusable.
std::optional<double> lengthOf(StringView text) {
    const ReadNumber number = readDouble(text);
    if (number.length == 0) return std::nullopt;
    const StringView name = trimmedOfWhitespaceAndNewlines(text.substr(number.length));
    for (const Unit& unit : kUnits) {
        const double length = number.value * unit.points;
        if (unit.name == name && isUsable(length)) return length;
    }
    return std::nullopt;
}

/// The size of a view box, the last two of four numbers.
std::optional<SvgSize> viewBoxSizeOf(StringView text) {
    std::array<double, 4> numbers{};
    for (double& number : numbers) {
        text.remove_prefix(std::min(text.find_first_not_of(u" \t\r\n,"), text.size()));
        const ReadNumber read = readDouble(text);
        if (read.length == 0) return std::nullopt;
        number = read.value;
        text.remove_prefix(read.length);
    }
    if (!isUsable(numbers[2]) || !isUsable(numbers[3])) return std::nullopt;
    return SvgSize{numbers[2], numbers[3]};
}

/// What the outermost element says.
struct Drawing {
    XML_Parser parser = nullptr;
    bool isSvg = false;
    std::optional<double> width{};
    std::optional<double> height{};
    std::optional<SvgSize> viewBox{};
};

/// Reads the outermost element, or stops there when it is something else.
void readRoot(void* target, const XML_Char* name, const XML_Char** attributes) noexcept {
    auto& drawing = *static_cast<Drawing*>(target);
    XML_SetStartElementHandler(drawing.parser, nullptr);
    drawing.isSvg = std::string_view(name) == "http://www.w3.org/2000/svg svg";
    if (!drawing.isSvg) XML_StopParser(drawing.parser, XML_FALSE);
    for (; attributes[0] != nullptr; attributes += 2) {
        const std::string_view attribute = attributes[0];
        const String value = fromUTF8(attributes[1]);
        if (attribute == "width") drawing.width = lengthOf(value);
        if (attribute == "height") drawing.height = lengthOf(value);
        if (attribute == "viewBox") drawing.viewBox = viewBoxSizeOf(value);
    }
}

/// A missing length follows from the other one in the proportion of the box.
SvgSize sizeOf(const Drawing& drawing) {
    const SvgSize box = drawing.viewBox.value_or(SvgSize{300, 150});
    const double proportion = box.height / box.width;
    const double width =
        drawing.width.value_or(drawing.height ? *drawing.height / proportion : box.width);
    return {width, drawing.height.value_or(width * proportion)};
}

}  // namespace

std::optional<SvgSize> svgSize(DataView file) {
    if (file.size() > INT32_MAX) return std::nullopt;
    const Parser parser(XML_ParserCreateNS(nullptr, ' '));
    if (parser == nullptr) return std::nullopt;
    Drawing drawing{.parser = parser.get()};
    XML_SetUserData(parser.get(), &drawing);
    XML_SetStartElementHandler(parser.get(), readRoot);
    const auto length = static_cast<int>(file.size());
    const XML_Status status = XML_Parse(parser.get(), textOf(file).data(), length, XML_TRUE);
    if (status != XML_STATUS_OK || !drawing.isSvg) return std::nullopt;
    return sizeOf(drawing);
}

}  // namespace QZCore
