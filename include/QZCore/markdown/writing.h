// Markdown writing: rich text written back in the dialect.
#pragma once

#include "QZCore/export.h"
#include "QZCore/foundation/preferences.h"
#include "QZCore/foundation/text.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

/// `text` as Markdown, run by run.
///
/// - A bold run that is a line of its own, with a line end behind it, and has
///   one of the point sizes of "Markdown Header Sizes" becomes a header of that
///   level, without other markers. The last line of a text has no line end
///   behind it and becomes a bold span; that is deliberate.
/// - Other runs stand between the markers of what they are: bold, italic or
///   both, underlined once (unless they are links, which look underlined
///   anyway), struck through once. A link is written as "[text](target)".
/// - Line feeds become "<br>" unless "Markdown Replace New Lines with br" is
///   off.
///
/// The preferences "Markdown Bold", "Markdown Italic", "Markdown BoldItalic",
/// "Markdown Underline" and "Markdown Strikethrough" hold the markers. Runs are
/// not joined: two bold runs of different colours are two spans. Nothing else
/// is written, and characters that are markers themselves are not escaped, so
/// that not every text can be read back. Costs time linear in the text.
[[nodiscard]] QZ_EXPORT String markdownString(const RichText& text);

/// The same with preferences of one's own.
[[nodiscard]] QZ_EXPORT String markdownString(const RichText& text, const Preferences& preferences);

}  // namespace QZCore
