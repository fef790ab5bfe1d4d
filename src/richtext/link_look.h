// How links look that the library makes.
#pragma once

#include "QZCore/foundation/preferences.h"
#include "QZCore/richtext/text_attributes.h"

namespace QZCore {

/// What a link takes beside the link itself: the colour of the preference "Link
/// Color", unless that is the clear one, and an underline unless "Link
/// Underline" is off.
[[nodiscard]] TextAttributes linkLook(const Preferences& preferences);

}  // namespace QZCore
