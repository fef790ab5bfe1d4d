// Character references of HTML, as "&amp;" and "&#x41;".
#pragma once

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Where a text with references stands. In the value of an attribute, a name
/// without a semicolon counts only when neither "=" nor a letter or digit
/// follows.
enum class ReferencePlace { Text, Attribute };

/// `text` with its character references resolved by the rules of the HTML
/// standard; what is no reference stays. Linear in the text.
[[nodiscard]] String withReferencesResolved(StringView text, ReferencePlace place);

}  // namespace QZCore
