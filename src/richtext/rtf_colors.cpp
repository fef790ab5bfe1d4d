#include <algorithm>

#include "richtext/rtf_definitions.h"

namespace QZCore {
namespace {

constexpr std::int32_t kMostOfAColor = 255;

}  // namespace

void RtfColors::word(std::string_view name, RtfNumber number) {
    Components components = next_.value_or(Components());
    const std::int32_t value = std::clamp(number.value, 0, kMostOfAColor);
    if (name == "red") {
        components.red = value;
    } else if (name == "green") {
        components.green = value;
    } else if (name == "blue") {
        components.blue = value;
    } else {
        return;
    }
    next_ = components;
}

void RtfColors::text(StringView text) {
    for (auto ends = std::ranges::count(text, u';'); ends > 0; --ends) {
        std::optional<Color>& color = colors_.emplace_back();
        if (next_) color = Color::colorWithCalibrated255Red(next_->red, next_->green, next_->blue);
        next_.reset();
    }
}

const std::optional<Color>& RtfColors::at(std::int32_t number) const {
    const auto index = static_cast<std::size_t>(number);
    return number >= 0 && index < colors_.size() ? colors_[index] : none_;
}

}  // namespace QZCore
