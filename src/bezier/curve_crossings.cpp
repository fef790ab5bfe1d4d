#include "bezier/curve_crossings.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "QZCore/bezier/cubics.h"
#include "bezier/crossings.h"
#include "bezier/stroke_hits.h"
#include "geometry/containment.h"

namespace QZCore {
namespace {

/// How flat a curve is that counts as a line: besides half the line width.
constexpr float kFlatness = 1;
// So short a stretch of a curve is beyond the resolution of positions.
constexpr int kDeepest = 64;

Rect boxOf(const CubicPoints& curve) {
    const auto& [a, b, c, d] = curve;
    const double left = std::min(std::min(a.x, b.x), std::min(c.x, d.x));
    const double top = std::min(std::min(a.y, b.y), std::min(c.y, d.y));
    const double right = std::max(std::max(a.x, b.x), std::max(c.x, d.x));
    const double bottom = std::max(std::max(a.y, b.y), std::max(c.y, d.y));
    return {{left, top}, {right - left, bottom - top}};
}

/// The magnitude of what is closest to 0 in a stretch of numbers.
double leastMagnitude(double low, double extent) { return std::max({low, -(low + extent), 0.0}); }

bool isFinite(const CubicPoints& curve) {
    return std::ranges::all_of(
        curve, [](Point point) { return std::isfinite(point.x) && std::isfinite(point.y); });
}

/// A stretch of a whole curve.
struct Stretch {
    CubicPoints points;
    double low;
    double interval;
};

/// A curve in halves.
struct Halves {
    CubicPoints first;
    CubicPoints second;

    explicit Halves(const CubicPoints& whole) {
        splitBezierCurveTo(whole.data(), first.data(), second.data());
    }
};

/// Two curves in halves, whose pairs are taken in turn.
class Quarters {
public:
    Quarters(const Stretch& a, const CubicPoints& b)
        : a_(a.points), b_(b), low_(a.low), interval_(a.interval / 2) {}

    /// Whether the halves are what they are halves of, so that there is no end.
    [[nodiscard]] bool repeat(const Stretch& a, const CubicPoints& b) const {
        return (a_.first == a.points || a_.second == a.points) && (b_.first == b || b_.second == b);
    }
    /// The next pair, if there is one.
    bool next(Stretch& a, CubicPoints& b) {
        if (taken_ == 4) return false;
        const bool isSecond = taken_ >= 2;
        a = {isSecond ? a_.second : a_.first, isSecond ? low_ + interval_ : low_, interval_};
        b = taken_ % 2 == 0 ? b_.first : b_.second;
        ++taken_;
        return true;
    }

private:
    Halves a_;
    Halves b_;
    double low_;
    double interval_;
    int taken_ = 0;
};

class Search {
public:
    Search(CrossingSink& sink, double lineWidth) : sink_(sink), flat_(lineWidth, kFlatness) {}

    /// Whether the sink has had enough.
    bool run(Stretch a, CubicPoints b) {
        if (!canBeFlat() || !isFinite(a.points) || !isFinite(b)) return false;
        sink_.startCurves();
        while (sink_.startPair()) {
            if (compare(a, b)) return true;
            if (!resume(a, b)) return false;
        }
        return false;
    }

private:
    /// Crosses a pair of pieces, or divides it. Whether the sink has had enough.
    bool compare(const Stretch& a, const CubicPoints& b) {
        const Rect box = boxOf(b);
        if (!overlap(boxOf(a.points), box)) return false;
        if (isFlat(b)) return cross(a, b);
        if (canGetFlat(box) && !staysLong(box)) divide(a, b);
        return false;
    }
    [[nodiscard]] bool canBeFlat() const {
        const double reach = flat_.ofLines;
        return reach * reach > 0;
    }
    /// How far off a line a flat curve is at most; squares of larger distances are
    /// beyond the floats.
    [[nodiscard]] double flatReach() const {
        constexpr double kFarthest = 0x1p64;
        return std::fmin(std::abs(flat_.ofLines), kFarthest);
    }
    /// Whether coordinates somewhere in the box are small enough to tell what is flat.
    [[nodiscard]] bool canGetFlat(Rect box) const {
        const double least = std::max(leastMagnitude(box.origin.x, box.size.width),
                                      leastMagnitude(box.origin.y, box.size.height));
        return least * std::numeric_limits<double>::epsilon() < flatReach();
    }
    /// Whether every stretch of a curve in that box that the halvings left can make is
    /// so long that its distances, which count in single precision, cannot be told to
    /// within what is flat. Stretches of a cubic shrink by no more than a cube.
    [[nodiscard]] bool staysLong(Rect box) const {
        constexpr int kRounding = 40;
        constexpr int kShareOfBox = 13;
        const int left = kDeepest - static_cast<int>(depth_);
        const double extent = box.size.width + box.size.height;
        return std::ldexp(extent, -(3 * left + kShareOfBox + kRounding)) > flatReach();
    }
    [[nodiscard]] bool isFlat(const CubicPoints& b) const {
        return straightLineHit(b[0], b[3], b[1], nullptr, flat_, nullptr) &&
               straightLineHit(b[0], b[3], b[2], nullptr, flat_, nullptr);
    }

    /// Crosses a stretch with the line that a flat curve is.
    bool cross(const Stretch& a, const CubicPoints& b) {
        const auto& [start, control1, control2, end] = a.points;
        CrossingTimes lineTimes;
        CrossingTimes times;
        const int count =
            curvedIntersection(lineTimes, times, parameterizeCurve(start, end, control1, control2),
                               parameterizeLine(b[0], b[3]));
        for (int i = 0; i < count; ++i) {
            if (sink_.add(a.low + a.interval * times[static_cast<std::size_t>(i)])) return true;
        }
        return false;
    }

    void divide(const Stretch& a, const CubicPoints& b) {
        if (depth_ == kDeepest) return;
        const Quarters& quarters = waiting_[depth_].emplace(a, b);
        if (!quarters.repeat(a, b)) ++depth_;
    }

    bool resume(Stretch& a, CubicPoints& b) {
        while (depth_ > 0 && !waiting_[depth_ - 1]->next(a, b)) --depth_;
        return depth_ > 0;
    }

    CrossingSink& sink_;
    HitRadius flat_;
    std::array<std::optional<Quarters>, kDeepest> waiting_;
    std::size_t depth_ = 0;
};

}  // namespace

bool addCurveToCurveIntersections(CrossingSink& sink, const CubicPoints& onCurve,
                                  const CubicPoints& otherCurve, double lineWidth,
                                  double bezierLowPosition, double bezierInterval) {
    return Search(sink, lineWidth).run({onCurve, bezierLowPosition, bezierInterval}, otherCurve);
}

}  // namespace QZCore
