// Lets a failing check print colours with all that makes them equal.
#pragma once

#include "QZCore/color/color.h"
#include "support/printing.h"

namespace doctest {

template <>
struct StringMaker<QZCore::Color> {
    static String convert(const QZCore::Color& color) {
        std::string text = "model " + std::to_string(static_cast<int>(color.model()));
        for (const double component : {color.redComponent(), color.greenComponent(),
                                       color.blueComponent(), color.alphaComponent()}) {
            text += " " + QZCore::toUTF8(QZCore::shortestString(component));
        }
        return text.c_str();
    }
};

template <class T>
struct StringMaker<std::optional<T>> {
    static String convert(const std::optional<T>& value) {
        return value ? StringMaker<T>::convert(*value) : String("nothing");
    }
};

}  // namespace doctest
