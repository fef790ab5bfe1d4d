#include "QZCore/bezier/affine_transform.h"

#include <cmath>

namespace QZCore {

void AffineTransform::translate(double x, double y) {
    const Point offset = transformed({x, y});
    tx = offset.x;
    ty = offset.y;
}

void AffineTransform::rotate(double angle) {
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    const AffineTransform before = *this;
    a = cosine * before.a + sine * before.c;
    b = cosine * before.b + sine * before.d;
    c = cosine * before.c - sine * before.a;
    d = cosine * before.d - sine * before.b;
}

void AffineTransform::scale(double x, double y) {
    a *= x;
    b *= x;
    c *= y;
    d *= y;
}

Point AffineTransform::transformed(Point point) const {
    return {a * point.x + c * point.y + tx, b * point.x + d * point.y + ty};
}

}  // namespace QZCore
