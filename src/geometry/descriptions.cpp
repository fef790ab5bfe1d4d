#include "QZCore/geometry/descriptions.h"

#include "QZCore/geometry/sentinels.h"

namespace QZCore {
namespace {

String twoNumbers(double first, StringView separator, double second) {
    return u"{ " + fixedString(first, 2).append(separator) + fixedString(second, 2) + u" }";
}

}  // namespace

String descriptionForPoint(Point point) {
    if (isZeroPoint(point)) return u"{ zero point }";
    if (isHugePoint(point)) return u"{ huge point }";
    return twoNumbers(point.x, u", ", point.y);
}

String descriptionForSize(Size size) {
    if (isZeroSize(size)) return u"{ zero size }";
    if (isHugeSize(size)) return u"{ huge size }";
    return twoNumbers(size.width, u" x ", size.height);
}

String descriptionForRect(Rect rect) {
    if (isZeroRect(rect)) return u"{ zero rectangle }";
    if (isHugeRect(rect)) return u"{ huge rectangle }";
    return u"{ origin = " + descriptionForPoint(rect.origin) + u" size = " +
           descriptionForSize(rect.size) + u" }";
}

}  // namespace QZCore
