#include "QZCore/geometry/sentinels.h"

namespace QZCore {
namespace {

/// The largest finite float. Stored in documents as the mark of "not set".
constexpr double kHuge = 3.4028234663852886e+38;

}  // namespace

constexpr Point QZHugePoint{kHuge, kHuge};
constexpr Size QZHugeSize{kHuge, kHuge};
constexpr Rect QZHugeRect{QZHugePoint, QZHugeSize};

bool isZeroPoint(Point point) { return point == Point{}; }

bool isZeroSize(Size size) { return size == Size{}; }

bool isZeroRect(Rect rect) { return rect == Rect{}; }

bool isHugePoint(Point point) { return point == QZHugePoint; }

bool isHugeSize(Size size) { return size == QZHugeSize; }

bool isHugeRect(Rect rect) { return rect == QZHugeRect; }

}  // namespace QZCore
