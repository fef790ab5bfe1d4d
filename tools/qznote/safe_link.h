// Links that are safe to follow.
#pragma once

#include <optional>

#include "QZCore/richtext/text_attributes.h"

namespace qznote {

/// The target of the link in `attributes` when following it runs nothing: a
/// relative one, or one of http, https, mailto and file. A scheme is recognised
/// as browsers do, which ignore blanks and control characters in it.
[[nodiscard]] std::optional<QZCore::String> safeLink(const QZCore::TextAttributes& attributes);

/// The scheme of `target` in lower case; empty when it has none.
[[nodiscard]] QZCore::String schemeOf(QZCore::StringView target);

}  // namespace qznote
