// The order of texts in a language.
#pragma once

#include <string>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Compares two file names by the collation rules of `locale`, an identifier
/// as "de_DE" or "de-DE", and returns -1, 0 or 1. Case does not count, digits
/// compare by value, canonically equivalent texts are equal. An empty or
/// unknown locale and those of the C language compare by the rules that all
/// languages share.
[[nodiscard]] int compareFileNames(StringView a, StringView b, const std::string& locale);

}  // namespace QZCore
