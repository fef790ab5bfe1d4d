// Markdown rendering: rich text in which Markdown was written becomes rich text
// in which it takes effect.
//
// Rendering deletes the markers of the dialect and formats what they enclose,
// as the style sheet, the preferences and the constructs' own defaults say. It
// runs on the caller's thread and costs time linear in the text. The one wait
// is the fetch of images through the shared URL loader; an application that
// must not wait, or not touch the network, sets another loader.
//
// Texts should end their lines with line feeds alone. A text of 2^32 - 1 units
// or more stays as it is.
#pragma once

#include "QZCore/export.h"
#include "QZCore/foundation/preferences.h"
#include "QZCore/foundation/text.h"
#include "QZCore/markdown/style_sheet.h"
#include "QZCore/markdown/syntax.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

/// The attribute, with an empty string as its value, that keeps later passes
/// away from rendered code and link texts. Rendering removes it at its end; a
/// caller may set it ahead to keep a part of the text as written.
inline constexpr StringView kIgnoreBlockAttributeName = u"VelnaIgnoreBlock";

/// Renders the Markdown in `text` in place. Constructs that the preferences
/// switch off stay as written.
///
/// The passes run in a fixed order: code blocks, links and images, inline code,
/// emoji, italic with asterisks and with underscores, bold, bold italic,
/// underline, strikethrough, the three highlights, block quotes, headers, lists.
/// A backslash before a marker keeps it as a plain character. Attributes are
/// fixed at the end.
QZ_EXPORT void renderContainedMarkdownWithStyles(RichText& text, const StyleSheet& styles);

/// The same with a syntax table and preferences of one's own.
QZ_EXPORT void renderContainedMarkdownWithStyles(RichText& text, const StyleSheet& styles,
                                                 const MarkdownSyntax& syntax,
                                                 const Preferences& preferences);

/// Renders without a style sheet.
QZ_EXPORT void renderContainedMarkdown(RichText& text);

/// The plain `string` with `attributes`, rendered without a style sheet.
[[nodiscard]] QZ_EXPORT RichText attributedStringWithMarkdown(StringView string,
                                                              const TextAttributes& attributes);

/// Whether the plain text of `text` contains Markdown.
[[nodiscard]] QZ_EXPORT bool containsMarkdown(const RichText& text);

}  // namespace QZCore
