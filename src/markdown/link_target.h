// The targets of links and images as URLs.
#pragma once

#include <optional>

#include "QZCore/foundation/data.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// `text` without the backslash of each escape: what the writer meant.
[[nodiscard]] String withoutEscapes(StringView text);

/// The URL of a target as it is written, or else with what a URL must escape
/// percent-encoded; nothing when neither is one.
[[nodiscard]] std::optional<URL> urlForTarget(StringView target);

/// The link to a target: its URL, or the target itself where it is none.
[[nodiscard]] Value linkForTarget(StringView target);

}  // namespace QZCore
