#include "richtext/link_look.h"

#include "QZCore/color/stored_colors.h"
#include "richtext/attribute_names.h"

namespace QZCore {

TextAttributes linkLook(const Preferences& preferences) {
    TextAttributes look;
    const auto color = colorForKey(preferences, u"Link Color");
    if (color && *color != Color::clearColor()) {
        look = look.withAttribute(attributeNames().foregroundColor, Value::boxed(*color));
    }
    if (preferences.boolForKey(u"Link Underline", true)) {
        look = look.withAttribute(attributeNames().underlineStyle, 1);
    }
    return look;
}

}  // namespace QZCore
