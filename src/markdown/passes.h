// The passes of the rendering, each over all matches of its construct.
#pragma once

#include "markdown/rendering_context.h"

namespace QZCore {

/// Code between fences takes the code style and is kept from later passes.
void renderCodeBlocks(RenderingContext& context, const MarkdownExpression& expression);

/// Links become their text, images attachments.
void renderLinks(RenderingContext& context, const MarkdownExpression& expression);

/// Code within a line takes the code style and is kept from later passes. One
/// backtick goes at each end, however many there are.
void renderInlineCode(RenderingContext& context, const MarkdownExpression& expression);

/// Short codes become their emoji; unknown ones stay as written.
void renderEmoji(RenderingContext& context, const MarkdownExpression& expression);

/// Italic, with asterisks or underscores.
void renderItalic(RenderingContext& context, const MarkdownExpression& expression);

/// Bold.
void renderBold(RenderingContext& context, const MarkdownExpression& expression);

/// Bold and italic in one.
void renderBoldItalic(RenderingContext& context, const MarkdownExpression& expression);

/// A single underline. Takes no style.
void renderUnderline(RenderingContext& context, const MarkdownExpression& expression);

/// A single strikethrough. Takes no style.
void renderStrikethrough(RenderingContext& context, const MarkdownExpression& expression);

/// A background colour, with any of three delimiters.
void renderHighlight(RenderingContext& context, const MarkdownExpression& expression);

/// Quoted lines are indented.
void renderBlockQuotes(RenderingContext& context, const MarkdownExpression& expression);

/// Titles take the size of their level.
void renderHeaders(RenderingContext& context, const MarkdownExpression& expression);

}  // namespace QZCore
