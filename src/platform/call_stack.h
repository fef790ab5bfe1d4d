// The calls that a thread is in, as a text for the log.
#pragma once

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The calls from the one that goes on at `returnAddress` outwards, innermost
/// first, at most 64: each as its module and its function, or its place in the
/// module where the function has no name. All calls when none goes on there.
[[nodiscard]] String callStackFrom(const void* returnAddress);

}  // namespace QZCore
