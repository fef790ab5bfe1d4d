// Lower case for the look-up of colour names.
#pragma once

#include "QZCore/foundation/text.h"

namespace QZCore {

/// `text` in lower case by the rules of Unicode, in no particular language.
/// The answer is `text` itself where nothing changes, else it is kept in
/// `storage`.
[[nodiscard]] StringView lowerCased(StringView text, String& storage);

}  // namespace QZCore
