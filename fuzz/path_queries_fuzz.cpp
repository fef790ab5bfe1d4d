// Whole paths of any numbers, asked everything that a path can be asked.
#include <cmath>
#include <cstring>
#include <vector>

#include "QZCore/bezier.h"
#include "require.h"

using namespace QZCore;

namespace {

/// Takes bytes apart; zeros when they are used up.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    [[nodiscard]] bool isEmpty() const { return size_ == 0; }
    template <class T>
    T take() {
        T value{};
        const std::size_t count = size_ < sizeof(T) ? size_ : sizeof(T);
        std::memcpy(&value, data_, count);
        data_ += count;
        size_ -= count;
        return value;
    }
    /// Mostly a number of a drawing; else any double.
    double number() {
        const auto kind = take<std::uint8_t>();
        return kind < 16 ? take<double>() : take<std::int16_t>() / 64.0;
    }
    Point point() {
        const double x = number();
        return {x, number()};
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
};

BezierPath pathOf(Bytes& bytes, std::size_t mostElements) {
    BezierPath path;
    path.setLineWidth(bytes.number());
    while (!bytes.isEmpty() && path.elementCount() < mostElements) {
        const Point p = bytes.point();
        switch (bytes.take<std::uint8_t>() % 8) {
            case 0:
                path.moveToPoint(p);
                break;
            case 1:
                path.closePath();
                break;
            case 2:
                return path;
            case 3:
            case 4: {
                const Point control = bytes.point();
                path.curveToPoint(bytes.point(), control, p);
                break;
            }
            default:
                path.lineToPoint(p);
        }
    }
    return path;
}

/// The elements, without anything that is kept of the path.
BezierPath anew(const BezierPath& path) {
    BezierPath copy;
    copy.setLineWidth(path.lineWidth());
    copy.appendBezierPath(path);
    return copy;
}

void ask(const BezierPath& path, const BezierPath& other, Point p, float number) {
    float position = 0;
    const std::ptrdiff_t index = path.segmentNearPoint(p, number, &position);
    require(index < static_cast<std::ptrdiff_t>(path.elementCount()) || index == 0);
    require(index == anew(path).segmentNearPoint(p, number));
    require(path.strokeContainsPoint(p, number) == (index != 0));
    (void)path.pointOnPathNearbyPoint(p, -1);
    (void)path.bezierPathByTrimmingToLength(number);

    const bool isCrossed = path.intersectionWithPath(other);
    require(isCrossed == !path.intersectionsWithPath(other).empty());
    require(path.intersectionWithLine(nullptr, p, other.currentPoint()) ==
            anew(path).intersectionWithLine(nullptr, p, other.currentPoint()));
    require(!isCrossed || path.distanceFromPath(other) == 0);
    (void)path.containsPath(other);
    require(path.containsPoint(p) == anew(path).containsPoint(p));

    (void)path.bezierPathByFlatteningPath().hash();
    (void)smartCurveFitPath(path, number, 0.5F);
    (void)curveFitPath(path, 1);
    (void)path.smoothedPathWithCornerRadius(number);
    (void)path.insetPathBy(number);
    (void)BezierPath::bezierPathCurveFittingThroughPointsOnPath(path);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes(data, size);
    const Point p = bytes.point();
    const auto number = static_cast<float>(bytes.number());
    const BezierPath path = pathOf(bytes, 32);
    const BezierPath other = pathOf(bytes, 8);
    ask(path, other, p, number);
    ask(other, path, path.currentPoint(), -1);
    return 0;
}
