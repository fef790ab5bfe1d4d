// Foreground colours as texts are compared by them: two are the same when they
// print as the same string, and text of no chosen colour counts as black.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/richtext/text_attributes.h"

namespace QZCore {

/// The foreground colour of `attributes`; black when there is none or it is
/// the default colour of text.
[[nodiscard]] inline Color comparedForeground(const TextAttributes& attributes) {
    const Color* color = attributes.foregroundColor();
    return color == nullptr || *color == Color::textColor() ? Color::blackColor() : *color;
}

/// Numbers colours by their strings. Each colour is printed once.
class ComparedColors {
public:
    /// The number of the colour's string, counted from 0 in order of appearance.
    std::uint32_t numberOf(const Color& color) {
        const auto [known, isNew] = numbers_.try_emplace(color, 0);
        if (isNew) known->second = numberOf(color.stringForColor());
        return known->second;
    }

    /// How many different strings there are.
    [[nodiscard]] std::uint32_t count() const {
        return static_cast<std::uint32_t>(strings_.size());
    }
    /// The string with that number.
    [[nodiscard]] const String& stringOf(std::uint32_t number) const { return *strings_[number]; }

private:
    struct Identity {
        std::size_t operator()(const Color& color) const { return hashOf(color); }
        bool operator()(const Color& a, const Color& b) const { return a.isIdenticalTo(b); }
    };

    std::uint32_t numberOf(const String& string) {
        const auto [known, isNew] = byString_.try_emplace(string, count());
        if (isNew) strings_.push_back(&known->first);
        return known->second;
    }

    std::unordered_map<Color, std::uint32_t, Identity, Identity> numbers_;
    std::unordered_map<String, std::uint32_t> byString_;
    std::vector<const String*> strings_;
};

}  // namespace QZCore
