// Colours in archives: to the bit, unlike their strings.

#include <cmath>

#include "QZCore/color/color.h"
#include "color/system_colors.h"
#include "model/content_reader.h"
#include "richtext/archived_attributes.h"

namespace QZCore {
namespace {

/// Whether `color` is the clear, white or black colour itself.
bool isFixed(const Color& color) {
    return color.isIdenticalTo(Color::clearColor()) || color.isIdenticalTo(Color::whiteColor()) ||
           color.isIdenticalTo(Color::blackColor());
}

// Stored in documents.
void encodeColor(const Color& color, ArchiveEncoder& coder) {
    coder.encodeContent(static_cast<int>(color.model()), u"model");
    coder.encodeContent(color.redComponent(), u"red");
    coder.encodeContent(color.greenComponent(), u"green");
    coder.encodeContent(color.blueComponent(), u"blue");
    coder.encodeContent(color.alphaComponent(), u"alpha");
    coder.encodeContent(isFixed(color), u"isFixed");
}

/// The colour of the system that has these components.
Color systemColor(double red, double green, double blue) {
    const auto byteOf = [](double component) {
        return component > 0 && component <= 1
                   ? static_cast<std::uint32_t>(std::lround(component * 255))
                   : 0U;
    };
    return SystemColors::fromHex(byteOf(red) << 16 | byteOf(green) << 8 | byteOf(blue));
}

Color fixedColor(const Color& equal) {
    for (const Color& fixed : {Color::clearColor(), Color::whiteColor(), Color::blackColor()}) {
        if (fixed == equal) return fixed;
    }
    return equal;
}

std::optional<Color> decodeColor(ArchiveDecoder& coder) {
    ContentReader from(coder);
    const auto model = from.integer(u"model", 0, static_cast<int>(ColorModel::System));
    const double red = from.real(u"red");
    const double green = from.real(u"green");
    const double blue = from.real(u"blue");
    const double alpha = from.real(u"alpha");
    const bool isFixed = from.boolean(u"isFixed");
    Color color = Color::colorWithCalibratedRed(red, green, blue, alpha);
    switch (static_cast<ColorModel>(model)) {
        case ColorModel::CalibratedWhite:
            color = Color::colorWithCalibratedWhite(red, alpha);
            break;
        case ColorModel::CalibratedRGB:
            break;
        case ColorModel::DeviceRGB:
            color = Color::colorWithDeviceRed(red, green, blue, alpha);
            break;
        case ColorModel::System:
            color = systemColor(red, green, blue);
            break;
    }
    return from.ifRight(isFixed ? fixedColor(color) : color);
}

}  // namespace

ArchivedClass archivedColor() { return archivedBox<Color, encodeColor, decodeColor>(u"Color"); }

}  // namespace QZCore
