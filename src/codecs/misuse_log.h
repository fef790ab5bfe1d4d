// Log lines for calls with arguments that only a mistake explains.
#pragma once

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Logs `line`, and in a second line the calls from the one that goes on at
/// `returnAddress` outwards: what called the operation that was misused.
void logMisuse(StringView line, const void* returnAddress);

}  // namespace QZCore
