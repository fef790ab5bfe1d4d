#include <array>
#include <cmath>
#include <limits>

#include "QZCore/bezier/cubics.h"
#include "foundation/single_precision.h"

namespace QZCore {
namespace {

// Far beyond what lengths of sensible coordinates and bounds need: 60,000 pieces
// and 30 halvings for curves of 1e9 units measured to a millionth. After so many
// splits, a piece whose error is no more than the rounding of its own distances is
// not split any further: its length is known as exactly as they tell.
constexpr int kManySplits = 1 << 18;
constexpr float kRounding = 8 * std::numeric_limits<float>::epsilon();
// So small a share of the curve is nothing beside the rest in single precision.
constexpr int kDeepestSplit = 128;

/// Points without defaults, so that a stack of them costs nothing.
struct Cubic {
    std::array<double, 4> x;
    std::array<double, 4> y;
};

/// The distance of two of its points, in single precision throughout.
float distance(const Cubic& cubic, std::size_t i, std::size_t j) {
    const float dx = f32(cubic.x[j] - cubic.x[i]);
    const float dy = f32(cubic.y[j] - cubic.y[i]);
    return std::sqrt(dx * dx + dy * dy);
}

double middle(double a, double b) { return 0.5 * a + 0.5 * b; }

/// Splits one coordinate in the middle of the segment.
void halve(const std::array<double, 4>& whole, std::array<double, 4>& left,
           std::array<double, 4>& right) {
    const double a = middle(whole[0], whole[1]);
    const double b = middle(whole[1], whole[2]);
    const double c = middle(whole[2], whole[3]);
    const double d = middle(a, b);
    const double e = middle(b, c);
    const double f = middle(d, e);
    left = {whole[0], a, d, f};
    right = {f, e, c, whole[3]};
}

/// The pieces that wait for the ones before them: the second halves.
class Waiting {
public:
    [[nodiscard]] bool isFull() const { return depth_ == kDeepestSplit; }

    /// Keeps the right half of `piece`, which becomes its left one.
    void split(Cubic& piece) {
        Half& half = halves_[static_cast<std::size_t>(depth_++)];
        const Cubic whole = piece;
        halve(whole.x, piece.x, half.right.x);
        halve(whole.y, piece.y, half.right.y);
        half.isLeftKnown = false;
    }

    /// Adds the length of a piece to that of its other half, if that is known, and so
    /// on; else the other half is the next `piece`. False when nothing waits.
    bool resume(Cubic& piece, float& length) {
        for (; depth_ > 0; --depth_) {
            Half& half = halves_[static_cast<std::size_t>(depth_ - 1)];
            if (!half.isLeftKnown) {
                half.left = length;
                half.isLeftKnown = true;
                piece = half.right;
                return true;
            }
            length = half.left + length;
        }
        return false;
    }

private:
    struct Half {
        Cubic right;
        float left;
        bool isLeftKnown;
    };
    std::array<Half, kDeepestSplit> halves_;
    int depth_ = 0;
};

}  // namespace

float lengthOfBezier(const Point* segment, float maxError) {
    Cubic piece{{segment[0].x, segment[1].x, segment[2].x, segment[3].x},
                {segment[0].y, segment[1].y, segment[2].y, segment[3].y}};
    Waiting waiting;
    int splits = 0;
    while (true) {
        const float polygon = distance(piece, 0, 1) + distance(piece, 1, 2) + distance(piece, 2, 3);
        const float chord = distance(piece, 0, 3);
        const float error = polygon - chord;
        const bool isRounding = splits >= kManySplits && error <= kRounding * polygon;
        const bool canSplit = std::isfinite(error) && !waiting.isFull() && !isRounding;
        if (!(error <= maxError) && canSplit) {
            waiting.split(piece);
            ++splits;
            continue;
        }
        float length = (polygon + chord) / 2;
        if (!waiting.resume(piece, length)) return length;
    }
}

}  // namespace QZCore
