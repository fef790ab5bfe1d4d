#include "QZCore/geometry/sentinels.h"

#include <cmath>
#include <type_traits>

#include "QZCore/geometry/descriptions.h"
#include "QZCore/geometry/whole_numbers.h"
#include "support/comma_locale.h"
#include "support/plane_printing.h"

namespace QZCore {
namespace {

constexpr double kLargestFloat = 3.4028234663852886e+38;

template <class T>
constexpr bool kIsPlain = std::is_trivially_copyable_v<T>&& std::is_standard_layout_v<T>;
static_assert(kIsPlain<Point> && sizeof(Point) == 2 * sizeof(double));
static_assert(kIsPlain<Size> && sizeof(Size) == 2 * sizeof(double));
static_assert(kIsPlain<Rect> && sizeof(Rect) == 4 * sizeof(double));

}  // namespace

TEST_CASE("zero and huge are exact, in every component") {
    struct Row {
        const char* why;
        Rect rect;
        bool isZero, isHuge;
    };
    const double huge = kLargestFloat;
    const Row rows[] = {
        {"zero", {}, true, false},
        {"zeros of either sign", {{-0.0, 0}, {0, -0.0}}, true, false},
        {"huge", {{huge, huge}, {huge, huge}}, false, true},
        {"a huge origin and a zero size", {{huge, huge}, {}}, false, false},
        {"one component less", {{huge, huge}, {huge, std::nextafter(huge, 0)}}, false, false},
        {"hardly more than zero", {{0, 0}, {0, 5e-324}}, false, false},
        {"not numbers", {{NAN, NAN}, {NAN, NAN}}, false, false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(isZeroRect(row.rect) == row.isZero);
        CHECK(isHugeRect(row.rect) == row.isHuge);
        CHECK(isZeroRect(row.rect) == (isZeroPoint(row.rect.origin) && isZeroSize(row.rect.size)));
        CHECK(isHugeRect(row.rect) == (isHugePoint(row.rect.origin) && isHugeSize(row.rect.size)));
    }
    CHECK(QZHugeRect == Rect{{huge, huge}, {huge, huge}});
    CHECK(QZHugeRect == Rect{QZHugePoint, QZHugeSize});
}

TEST_CASE("descriptions have two decimals, and words for zero and huge") {
    const testing::CommaLocale locale;
    struct Row {
        Rect rect;
        StringView point, size, whole;
    };
    const Row rows[] = {
        {{}, u"{ zero point }", u"{ zero size }", u"{ zero rectangle }"},
        {QZHugeRect, u"{ huge point }", u"{ huge size }", u"{ huge rectangle }"},
        {{{0, 0}, {10, 20}},
         u"{ zero point }",
         u"{ 10.00 x 20.00 }",
         u"{ origin = { zero point } size = { 10.00 x 20.00 } }"},
        {{{-0.004, 0.005}, {3.4e38, 0}},
         u"{ -0.00, 0.01 }",
         u"{ 339999999999999996123846586046231871488.00 x 0.00 }",
         u"{ origin = { -0.00, 0.01 } size = { 339999999999999996123846586046231871488.00 x "
         u"0.00 } }"},
        {{QZHugePoint, {}},
         u"{ huge point }",
         u"{ zero size }",
         u"{ origin = { huge point } size = { zero size } }"},
        {{{INFINITY, -INFINITY}, {NAN, 1}},
         u"{ inf, -inf }",
         u"{ nan x 1.00 }",
         u"{ origin = { inf, -inf } size = { nan x 1.00 } }"},
    };
    for (const Row& row : rows) {
        CHECK(descriptionForPoint(row.rect.origin) == row.point);
        CHECK(descriptionForSize(row.rect.size) == row.size);
        CHECK(descriptionForRect(row.rect) == row.whole);
    }
}

TEST_CASE("numbers are even by their lowest bit, and whole without a fraction") {
    for (const std::int32_t even : {0, 2, -2, INT32_MIN, INT32_MAX - 1}) {
        CHECK(isNumberEven(even));
        CHECK_FALSE(isNumberEven(even + 1));
    }
    for (const float whole : {0.0F, -0.0F, -3.0F, 16777216.0F, 3.4e38F, INFINITY, -INFINITY}) {
        CHECK(isWholeNumber(whole));
    }
    for (const float broken : {0.5F, -0.5F, 1e-45F, 8388607.5F, NAN}) {
        CHECK_FALSE(isWholeNumber(broken));
    }
}

}  // namespace QZCore
