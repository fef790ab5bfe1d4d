#include <cmath>

#include "QZCore/bezier/curve_fitting.h"
#include "bezier/path_steps.h"

namespace QZCore {
namespace {

/// Collects runs of lines and appends what is fitted to them.
class RunFitting {
public:
    RunFitting(const BezierPath& source, float error) : error_(error) {
        result_.setWindingRule(source.windingRule());
    }

    [[nodiscard]] BezierPath& result() { return result_; }
    [[nodiscard]] bool hasLines() const { return run_.elementCount() > 1; }

    void add(Point point) { run_.appendBezierPathWithPoints(&point, 1); }
    void flush() {
        if (hasLines()) {
            appendBezierPathRemovingInitialMoveToPoint(result_, curveFitPath(run_, error_));
        }
        run_.removeAllPoints();
    }

private:
    BezierPath run_;
    BezierPath result_;
    float error_;
};

/// Where the path goes after a line: the first point of the next element, or the start
/// of the subpath.
Point pointAfter(const BezierPath& path, std::size_t index, Point subpathStart) {
    Point points[3];
    if (index + 1 >= path.elementCount()) return subpathStart;
    const bool closes = path.elementAtIndex(index + 1, points) == PathElementType::ClosePath;
    return closes ? subpathStart : points[0];
}

}  // namespace

BezierPath smartCurveFitPath(const BezierPath& path, float error, float cornerAngle) {
    RunFitting fitting(path, error);
    BezierPath& result = fitting.result();
    std::size_t index = 0;
    for (const auto& [type, p, current, start] : PathSteps(path.elements())) {
        switch (type) {
            case PathElementType::MoveTo:
                fitting.flush();
                fitting.add(p[0]);
                result.moveToPoint(p[0]);
                break;
            case PathElementType::LineTo: {
                fitting.add(p[0]);
                const float turn = AngleBetween(current, p[0], pointAfter(path, index, start));
                if (std::abs(turn) > cornerAngle && fitting.hasLines()) {
                    fitting.flush();
                    fitting.add(p[0]);
                }
                break;
            }
            case PathElementType::CurveTo:
                fitting.flush();
                result.curveToPoint(p[2], p[0], p[1]);
                break;
            case PathElementType::ClosePath:
                if (fitting.hasLines()) {
                    fitting.add(start);
                    fitting.flush();
                }
                result.closePath();
                break;
        }
        ++index;
    }
    // A run that nothing has ended is dropped. Wanted: strokes are closed by it.
    return fitting.result();
}

}  // namespace QZCore
