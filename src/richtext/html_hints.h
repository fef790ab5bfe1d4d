// What the attributes of HTML's elements say of their look.
#pragma once

#include "richtext/css_declarations.h"
#include "richtext/html_tokenizer.h"

namespace QZCore {

/// The declarations that the attributes of a start tag stand for, "style" left
/// out: colours, fonts, alignments, directions and sizes of older pages.
[[nodiscard]] CssDeclarations htmlHintsOf(const HtmlToken& tag);

}  // namespace QZCore
