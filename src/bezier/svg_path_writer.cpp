#include <algorithm>
#include <charconv>

#include "QZCore/bezier/svg_path_data.h"
#include "bezier/finite.h"
#include "bezier/path_steps.h"

namespace QZCore {
namespace {

constexpr char16_t kLetters[] = {u'M', u'L', u'C', u'Z'};

void appendNumber(String& data, double number) {
    char digits[32];
    const char* end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    data.append(static_cast<const char*>(digits), end);
}

void appendPoint(String& data, Point point) {
    appendNumber(data, point.x);
    data.push_back(u',');
    appendNumber(data, point.y);
}

void appendElement(String& data, const PathStep& step) {
    if (!data.empty()) data.push_back(u' ');
    data.push_back(kLetters[static_cast<std::size_t>(step.type)]);
    for (std::uint32_t i = 0; i < detail::pointCountOf(step.type); ++i) {
        if (i > 0) data.push_back(u' ');
        appendPoint(data, step.points[i]);
    }
}

}  // namespace

String svgPathData(const BezierPath& path) {
    String data;
    if (!path.isEmpty() && path.elementAtIndex(0) != PathElementType::MoveTo) data = u"M0,0";
    for (const PathStep& step : PathSteps(path.elements())) {
        const Point* end = step.points + detail::pointCountOf(step.type);
        if (!std::all_of(step.points, end, isFinite)) break;
        appendElement(data, step);
    }
    return data;
}

}  // namespace QZCore
