#include "QZCore/bezier/connectors.h"

#include <utility>

#include "QZCore/bezier/bezier_path.h"
#include "foundation/single_precision.h"

namespace QZCore {

float nubThreshhold(float h, float n) {
    if (h > 0) return n > h ? n : h;
    return n - h;
}

namespace {

/// The straight stub at one end of a connector; none when its length is 0.
struct Nub {
    bool isHorizontal;
    double length;
};

/// What a connector runs between.
struct Connector {
    Point start;
    Point end;
    Nub startNub;
    Nub endNub;

    /// The connector drawn from left to right, or from top to bottom, if it runs
    /// backwards along the axis that its nubs share. Their directions stay.
    [[nodiscard]] Connector inDrawingOrder() const {
        const bool isBackwards = startNub.isHorizontal ? end.x < start.x : end.y < start.y;
        if (startNub.isHorizontal != endNub.isHorizontal || !isBackwards) return *this;
        Connector turned{end, start, startNub, endNub};
        std::swap(turned.startNub.length, turned.endNub.length);
        return turned;
    }

    /// Where the nub at the start ends, or `orElse` without one.
    [[nodiscard]] Point startNubPoint(Point orElse) const {
        if (startNub.length == 0) return orElse;
        if (startNub.isHorizontal) return {start.x + reachOf(startNub), start.y};
        return {start.x, start.y + reachOf(startNub)};
    }

    /// Where the nub at the end begins, or `orElse` without one.
    [[nodiscard]] Point endNubPoint(Point orElse) const {
        if (endNub.length == 0) return orElse;
        if (endNub.isHorizontal) return {end.x - reachOf(endNub), end.y};
        return {end.x, end.y - reachOf(endNub)};
    }

private:
    [[nodiscard]] float reachOf(Nub nub) const {
        const double distance = nub.isHorizontal ? end.x - start.x : end.y - start.y;
        return nubThreshhold(f32(distance / 2), f32(nub.length));
    }
};

BezierPath ropeAlong(const Connector& connector) {
    BezierPath path;
    path.moveToPoint(connector.start);
    path.curveToPoint(connector.end, connector.startNubPoint(connector.start),
                      connector.endNubPoint(connector.end));
    return path;
}

BezierPath bentLinesAlong(const Connector& connector) {
    const auto& [start, end, startNub, endNub] = connector;
    BezierPath path;
    path.moveToPoint(start);
    // Without nubs the legs cross. Boards that were drawn so look so again.
    path.lineToPoint(connector.startNubPoint({start.x, end.y}));
    path.lineToPoint(connector.endNubPoint({end.x, start.y}));
    path.lineToPoint(end);
    return path;
}

}  // namespace

BezierPath BezierPath::bezierPathRopeFromPoint(Point point, Point to, bool isStartNubHorizontal,
                                               bool isEndNubHorizontal, double startNubLength,
                                               double endNubLength) {
    const Connector connector{
        point, to, {isStartNubHorizontal, startNubLength}, {isEndNubHorizontal, endNubLength}};
    return ropeAlong(connector.inDrawingOrder());
}

BezierPath BezierPath::bezierPathBentLinesFromPoint(Point point, Point to,
                                                    bool isStartNubHorizontal,
                                                    bool isEndNubHorizontal, double startNubLength,
                                                    double endNubLength) {
    const Connector connector{
        point, to, {isStartNubHorizontal, startNubLength}, {isEndNubHorizontal, endNubLength}};
    return bentLinesAlong(connector.inDrawingOrder());
}

// NOLINTNEXTLINE(readability-function-size)
BezierPath BezierPath::bezierPathRoundedBentLinesFromPoint(Point point, Point to,
                                                           bool isStartNubHorizontal,
                                                           bool isEndNubHorizontal,
                                                           double startNubLength,
                                                           double endNubLength, double radius) {
    return bezierPathBentLinesFromPoint(point, to, isStartNubHorizontal, isEndNubHorizontal,
                                        startNubLength, endNubLength)
        .bezierPathWithOrthogonalLinesToCurvedCornersOfRadius(radius);
}

}  // namespace QZCore
