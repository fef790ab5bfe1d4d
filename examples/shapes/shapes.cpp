// Draws the library's shapes on one sheet: shapes > shapes.svg
#include <QZCore/bezier.h>
#include <QZCore/geometry.h>

#include <iostream>
#include <vector>

using namespace QZCore;

namespace {

constexpr Rect kFrame{{20, 20}, {160, 100}};
constexpr double kCellWidth = 200;
constexpr double kCellHeight = 165;
constexpr std::size_t kColumns = 4;

struct Shape {
    const char* title;
    BezierPath path;
};

/// A star with five points.
BezierPath star() {
    BezierPath path;
    for (int i = 0; i < 5; ++i) {
        const float angle = radiansFromDegrees(static_cast<float>(144 * i - 90));
        const Point tip = relativePoint(centerOfRect(kFrame), 55, angle);
        path.appendBezierPathWithPoints(&tip, 1);
    }
    path.closePath();
    return path;
}

std::vector<Shape> connectors() {
    const Point a = topLeftOfRect(kFrame);
    const Point b = bottomRightOfRect(kFrame);
    return {
        {"rope", BezierPath::bezierPathRopeFromPoint(a, b, true, true, 20, 20)},
        {"upright rope", BezierPath::bezierPathRopeFromPoint(a, b, false, false, 20, 20)},
        {"mixed rope", BezierPath::bezierPathRopeFromPoint(a, b, true, false, 20, 20)},
        {"long nubs", BezierPath::bezierPathRopeFromPoint(a, b, true, true, 120, 120)},
        {"bent lines", BezierPath::bezierPathBentLinesFromPoint(a, b, true, true, 20, 20)},
        {"mixed bent lines", BezierPath::bezierPathBentLinesFromPoint(a, b, true, false, 20, 20)},
        {"without nubs", BezierPath::bezierPathBentLinesFromPoint(a, b, true, true, 0, 0)},
        {"rounded bent lines",
         BezierPath::bezierPathRoundedBentLinesFromPoint(a, b, true, true, 20, 20, 20)},
        {"upright, rounded",
         BezierPath::bezierPathRoundedBentLinesFromPoint(a, b, false, false, 20, 20, 20)},
        {"long nubs, rounded",
         BezierPath::bezierPathRoundedBentLinesFromPoint(a, b, true, true, 120, 120, 20)},
    };
}

std::vector<Shape> outlines() {
    const Rect tall{{60, 20}, {70, 100}};
    const BezierPath frame = BezierPath::bezierPathWithRect(kFrame);
    return {
        {"triangle, left", BezierPath::bezierPathWithTriangleInRect(kFrame, RectEdge::Left)},
        {"triangle, top", BezierPath::bezierPathWithTriangleInRect(kFrame, RectEdge::Top)},
        {"triangle, right", BezierPath::bezierPathWithTriangleInRect(kFrame, RectEdge::Right)},
        {"triangle, bottom", BezierPath::bezierPathWithTriangleInRect(kFrame, RectEdge::Bottom)},
        {"rounded rectangle", BezierPath::bezierPathWithRoundRectInRect(kFrame, 20)},
        {"jagged pill", BezierPath::bezierPathWithJaggedPillInRect(kFrame, 8)},
        {"upright jagged pill", BezierPath::bezierPathWithJaggedPillInRect(tall, 8)},
        {"jagged oval", BezierPath::bezierPathWithJaggedOvalInRect(kFrame, 8)},
        {"large teeth", BezierPath::bezierPathWithJaggedOvalInRect(kFrame, 25)},
        {"rounded corners", frame.bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(30)},
        {"rounded star", star().bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(4)},
        {"hull", BezierPath::bezierPathAsConvexHullContainingRect({{20, 20}, {60, 40}},
                                                                  {{90, 70}, {90, 50}})},
        {"arcs of SVG", readSvgPathData(u"M100 20A60 30 30 1 1 60 90a20 20 0 0 0 60 20").path},
        {"a part", star().bezierPathFromLength(60, 380)},
    };
}

void draw(const Shape& shape, std::size_t index) {
    const double x = kCellWidth * static_cast<double>(index % kColumns);
    const double y = kCellHeight * static_cast<double>(index / kColumns);
    std::cout << "<g transform=\"translate(" << x << ' ' << y << ")\">\n"
              << "  <rect x=\"20\" y=\"20\" width=\"160\" height=\"100\" stroke=\"#dde\"/>\n"
              << "  <path stroke=\"#225\" stroke-width=\"2\" d=\""
              << toUTF8(svgPathData(shape.path)) << "\"/>\n"
              << "  <text x=\"100\" y=\"145\" fill=\"#555\">" << shape.title << "</text>\n"
              << "</g>\n";
}

}  // namespace

int main() {
    std::vector<Shape> shapes = connectors();
    for (Shape& shape : outlines()) shapes.push_back(std::move(shape));
    const std::size_t rows = (shapes.size() + kColumns - 1) / kColumns;
    std::cout << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << kCellWidth * kColumns
              << "\" height=\"" << kCellHeight * static_cast<double>(rows)
              << "\" fill=\"none\" font-family=\"sans-serif\" font-size=\"13\" "
                 "text-anchor=\"middle\" style=\"background: white\">\n";
    for (std::size_t i = 0; i < shapes.size(); ++i) draw(shapes[i], i);
    std::cout << "</svg>\n";
    return std::cout.good() ? 0 : 1;
}
