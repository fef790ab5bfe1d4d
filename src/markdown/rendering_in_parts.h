// Rendering with a chosen length of the parts that a note is cut into.
#pragma once

#include <cstddef>

#include "QZCore/markdown/rendering.h"

namespace QZCore {

/// Renders as the public operation does, whatever the length of the parts.
void renderContainedMarkdownWithStyles(RichText& text, const StyleSheet& styles,
                                       const MarkdownSyntax& syntax, const Preferences& preferences,
                                       std::size_t partLength);

}  // namespace QZCore
