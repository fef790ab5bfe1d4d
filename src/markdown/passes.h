// The passes of the rendering, each over all matches of its construct.
#pragma once

#include <memory>

#include "markdown/rendering_context.h"

namespace QZCore {

using Pass = std::unique_ptr<MatchEditor>;

/// Code between fences takes the code style and is kept from later passes.
[[nodiscard]] Pass codeBlockPass(RenderingContext& context);

/// Links become their text, images attachments.
[[nodiscard]] Pass linkPass(RenderingContext& context);

/// Code within a line takes the code style and is kept from later passes. One
/// backtick goes at each end, however many there are.
[[nodiscard]] Pass inlineCodePass(RenderingContext& context);

/// Short codes become their emoji; unknown ones stay as written.
[[nodiscard]] Pass emojiPass(RenderingContext& context);

/// Italic, with asterisks or underscores.
[[nodiscard]] Pass italicPass(RenderingContext& context);

/// Bold.
[[nodiscard]] Pass boldPass(RenderingContext& context);

/// Bold and italic in one.
[[nodiscard]] Pass boldItalicPass(RenderingContext& context);

/// A single underline. Takes no style.
[[nodiscard]] Pass underlinePass(RenderingContext& context);

/// A single strikethrough. Takes no style.
[[nodiscard]] Pass strikethroughPass(RenderingContext& context);

/// A background colour, with any of three delimiters.
[[nodiscard]] Pass highlightPass(RenderingContext& context);

/// Quoted lines are indented.
[[nodiscard]] Pass blockQuotePass(RenderingContext& context);

/// Titles take the size of their level.
[[nodiscard]] Pass headerPass(RenderingContext& context);

}  // namespace QZCore
