#include "svg_drawing.h"

#include <algorithm>
#include <cmath>

#include "QZCore/bezier/svg_path_data.h"

namespace qznote {
namespace {

using namespace QZCore;

constexpr double kPixels = 640;
constexpr double kMargin = 0.05;  // of the longer side
constexpr double kStroke = 2;     // in pixels

/// What the drawing shows: the bounds of the path with room around it.
Rect frameOf(const BezierPath& path) {
    const Rect bounds = path.bounds();
    const double side = std::max(bounds.size.width, bounds.size.height);
    const double margin = side > 0 ? side * kMargin : 1;
    return {{bounds.origin.x - margin, bounds.origin.y - margin},
            {bounds.size.width + 2 * margin, bounds.size.height + 2 * margin}};
}

String attribute(StringView name, StringView value) {
    return String(u" ").append(name).append(u"=\"").append(value).append(u"\"");
}

String line(const BezierPath& path, StringView color, double width) {
    return u"  <path" + attribute(u"stroke", color) +
           attribute(u"stroke-width", shortestString(width)) + attribute(u"d", svgPathData(path)) +
           u"/>\n";
}

}  // namespace

std::string svgDrawing(const BezierPath& path, const BezierPath& whole) {
    const Rect frame = frameOf(whole);
    const double scale = kPixels / std::max(frame.size.width, frame.size.height);
    String box;
    for (const double number :
         {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height}) {
        box += (box.empty() ? u"" : u" ") + shortestString(number);
    }
    String svg = u"<svg xmlns=\"http://www.w3.org/2000/svg\"" + attribute(u"viewBox", box) +
                 attribute(u"width", fixedString(frame.size.width * scale, 0)) +
                 attribute(u"height", fixedString(frame.size.height * scale, 0)) +
                 u" fill=\"none\" stroke-linejoin=\"round\" style=\"background: white\">\n";
    if (!path.isIdentical(whole) && path != whole) {
        svg += line(whole, u"#ccc", kStroke / scale);
    }
    svg += line(path, u"#222", kStroke / scale) + u"</svg>\n";
    return toUTF8(svg);
}

}  // namespace qznote
