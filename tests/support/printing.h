// Lets a failing check print texts, ranges and values.
#pragma once

#include <doctest/doctest.h>

#include <vector>

#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"

namespace doctest {

/// What a row is there for; otherwise its address would be printed.
template <>
struct StringMaker<const char*> {
    static String convert(const char* text) { return text; }
};

template <>
struct StringMaker<std::u16string> {
    static String convert(const std::u16string& text) {
        return ("\"" + QZCore::toUTF8(text) + "\"").c_str();
    }
};

template <>
struct StringMaker<std::u16string_view> {
    static String convert(std::u16string_view text) {
        return ("\"" + QZCore::toUTF8(text) + "\"").c_str();
    }
};

template <class T>
struct StringMaker<std::vector<T>> {
    static String convert(const std::vector<T>& items) {
        String text = "[";
        for (const T& item : items) text += StringMaker<T>::convert(item) + " ";
        return text + "]";
    }
};

template <>
struct StringMaker<QZCore::Range> {
    static String convert(const QZCore::Range& range) {
        return (std::to_string(range.location) + "+" + std::to_string(range.length)).c_str();
    }
};

template <>
struct StringMaker<QZCore::Value> {
    static String convert(const QZCore::Value& value) {
        return QZCore::toUTF8(value.description()).c_str();
    }
};

}  // namespace doctest
