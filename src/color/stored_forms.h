// What colour strings begin with, and the strings of the commonest colours.
// They stand in documents and settings.
#pragma once

#include "QZCore/foundation/text.h"

namespace QZCore {

inline constexpr StringView kHexStart = u"rgba(";
inline constexpr StringView kDecimalStart = u"rgb(";

inline constexpr StringView kClearString = u"rgba(00,00,00,0.000000)";
inline constexpr StringView kShortClearString = u"rgba(0,0,0,0)";
inline constexpr StringView kWhiteString = u"#ffffff";
inline constexpr StringView kBlackString = u"#000000";

}  // namespace QZCore
