// Typed access to sizes in dictionaries and preferences, which hold them as
// texts of the form "{120, 80}".
//
// The default stands in for an absent key only. A key whose value is no such
// text gives the zero size, whatever the default is.
#pragma once

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

class Dictionary;
class Preferences;

/// The size whose text is stored under `key`: two decimal numbers in braces, a
/// comma between them, white space anywhere around the four.
[[nodiscard]] QZ_EXPORT Size sizeForKey(const Dictionary& dictionary, StringView key,
                                        Size withDefault = {});

/// Stores the size's text. It reads back as the same size when both extents are
/// finite.
QZ_EXPORT void setSize(Dictionary& dictionary, Size size, StringView forKey);

/// The size whose text is stored under `key`.
[[nodiscard]] QZ_EXPORT Size sizeForKey(const Preferences& preferences, StringView key,
                                        Size withDefault = {});

/// Stores the size's text.
QZ_EXPORT void setSize(Preferences& preferences, Size size, StringView forKey);

}  // namespace QZCore
