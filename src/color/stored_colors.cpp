#include "QZCore/color/stored_colors.h"

#include "color/legacy_color.h"

namespace QZCore {

std::optional<Color> colorForKey(const Dictionary& dictionary, StringView key,
                                 const std::optional<Color>& withDefault) {
    const Value* stored = dictionary.find(key);
    return stored == nullptr ? withDefault : Color::colorForString(*stored);
}

void setColor(Dictionary& dictionary, const std::optional<Color>& color, StringView forKey) {
    if (color) dictionary.setObject(color->stringForColor(), forKey);
}

std::optional<Color> colorForKey(const Preferences& preferences, StringView key,
                                 const std::optional<Color>& withDefault) {
    const Value stored = preferences.objectForKey(key);
    if (stored.isAbsent()) return withDefault;
    if (const String* string = stored.string()) return Color::colorForString(*string);
    return stored.data() == nullptr ? std::nullopt : legacyColor(*stored.data());
}

void setColor(Preferences& preferences, const std::optional<Color>& color, StringView forKey) {
    if (color) preferences.setObject(color->stringForColor(), forKey);
}

}  // namespace QZCore
