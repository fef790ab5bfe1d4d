// Links as instructions of RTF fields.
#pragma once

#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// The instruction of a field that links to `link`, a URL or a string.
[[nodiscard]] String hyperlinkInstruction(const Value& link);

/// What the instruction of a field links to: a URL when it is one with a
/// scheme, else a string, which starts with "#" for a place in the document.
/// Absent for any other instruction.
[[nodiscard]] Value linkOfInstruction(StringView instruction);

}  // namespace QZCore
