// Lets a failing check print points, sizes and rectangles with all digits.
#pragma once

#include <string>

#include "QZCore/geometry/plane.h"
#include "support/printing.h"

namespace doctest {

template <>
struct StringMaker<QZCore::Point> {
    static String convert(const QZCore::Point& point) {
        const QZCore::String text =
            u"(" + QZCore::shortestString(point.x) + u", " + QZCore::shortestString(point.y) + u")";
        return QZCore::toUTF8(text).c_str();
    }
};

template <>
struct StringMaker<QZCore::Size> {
    static String convert(const QZCore::Size& size) {
        return StringMaker<QZCore::Point>::convert({size.width, size.height});
    }
};

template <>
struct StringMaker<QZCore::Rect> {
    static String convert(const QZCore::Rect& rect) {
        return StringMaker<QZCore::Point>::convert(rect.origin) + " " +
               StringMaker<QZCore::Size>::convert(rect.size);
    }
};

}  // namespace doctest
