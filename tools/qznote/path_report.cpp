#include "path_report.h"

#include "QZCore/bezier/svg_path_data.h"

namespace qznote {
namespace {

using namespace QZCore;

BezierPath hullOf(const BezierPath& path) {
    const detail::PathElements& elements = path.elements();
    std::vector<Point> points(elements.points(), elements.points() + elements.pointCount());
    return BezierPath::bezierPathAsConvexHullContainingPoints(
        points.data(), static_cast<std::int32_t>(points.size()));
}

}  // namespace

std::string pathReport(const BezierPath& path) {
    const Rect bounds = path.bounds();
    String report = u"elements: " + unsignedString(path.elementCount());
    report += u"\nlength: " + fixedString(path.length(), 2) + u"\nbounds:";
    for (const double number :
         {bounds.origin.x, bounds.origin.y, bounds.size.width, bounds.size.height}) {
        report += u' ' + shortestString(number);
    }
    report += u"\nhull: " + (path.isEmpty() ? String() : svgPathData(hullOf(path))) + u"\n";
    return toUTF8(report);
}

}  // namespace qznote
