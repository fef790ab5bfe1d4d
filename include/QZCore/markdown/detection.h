// Whether a text contains Markdown, for example to offer to render what was
// pasted.
//
// Every test exists twice: with the table of the process, and with one that the
// caller passes. Characters escaped by a backslash never count, and white space
// around the text is ignored. The tests take time linear in the text. They keep
// no state and may be called from any thread.
#pragma once

#include <cstdint>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/markdown/syntax.h"

namespace QZCore {

/// What to look for, to be added up.
enum MarkdownOptions : std::uint32_t {
    kMarkdownOptionRichText = 1,  // any construct of `kMarkdownRichTextKeys`
    kMarkdownOptionList = 2,
    kMarkdownOptionTable = 4,          // not looked for together with lists
    kMarkdownOptionsAll = 4294967295,  // as `containsMarkdown` asks
};

/// Whether `text` contains what `options` name. Rich text is looked for first;
/// then a list, and only where lists are not asked for, a table. With `onlyOne`
/// a list or table must be all there is: a list may also stand behind a title
/// line and a blank line, or go on to the end of the text from its first line;
/// a table may have other lines around it as long as none is empty. With lists
/// switched off there is no list, and a table is not looked for either.
[[nodiscard]] QZ_EXPORT bool containsMarkdownOptions(StringView text, std::uint32_t options,
                                                     bool onlyOne);
/// The same with the given table.
[[nodiscard]] QZ_EXPORT bool containsMarkdownOptions(StringView text, std::uint32_t options,
                                                     bool onlyOne, const MarkdownSyntax& syntax);

/// Whether `text` contains rich text or a list. A table alone does not count:
/// `containsMarkdownTableOnly` asks for it.
[[nodiscard]] QZ_EXPORT bool containsMarkdown(StringView text);
/// The same with the given table.
[[nodiscard]] QZ_EXPORT bool containsMarkdown(StringView text, const MarkdownSyntax& syntax);

/// Whether `text` contains emphasis, highlights, inline code, links or headers.
[[nodiscard]] QZ_EXPORT bool containsMarkdownRichText(StringView text);
/// The same with the given table.
[[nodiscard]] QZ_EXPORT bool containsMarkdownRichText(StringView text,
                                                      const MarkdownSyntax& syntax);

/// Whether `text` is a list, with or without a title line above a blank line.
[[nodiscard]] QZ_EXPORT bool containsMarkdownListOnly(StringView text);
/// The same with the given table.
[[nodiscard]] QZ_EXPORT bool containsMarkdownListOnly(StringView text,
                                                      const MarkdownSyntax& syntax);

/// Whether `text` is a table without empty lines.
[[nodiscard]] QZ_EXPORT bool containsMarkdownTableOnly(StringView text);
/// The same with the given table.
[[nodiscard]] QZ_EXPORT bool containsMarkdownTableOnly(StringView text,
                                                       const MarkdownSyntax& syntax);

/// Whether `text` is a task outline: a project line that ends in a colon, then
/// lines that are tasks ("- " behind any indentation) or indented notes, with
/// one task at least. An empty line ends the outline's claim, and so do CR LF
/// line ends, which count as two.
[[nodiscard]] QZ_EXPORT bool isTaskPaperOutline(StringView text);

}  // namespace QZCore
