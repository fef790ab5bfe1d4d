// A Markdown list as rich text with text lists.
#pragma once

#include "QZCore/markdown/style_sheet.h"
#include "QZCore/markdown/syntax.h"
#include "markdown/flat_writer.h"
#include "markdown/render_text.h"

namespace QZCore {

/// What lists are rendered by.
struct ListSettings {
    const StyleSheet& styles;
    const Preferences& preferences;
    /// The row of single items.
    const MarkdownExpression& listLine;
};

/// Adds the list `markdown` to `out` as rich text. Its attributes are read from
/// `runs` and numbered by `palette`; numbers with the mark to be ignored keep
/// it.
void writeList(const FlatSlice& markdown, std::span<const FlatRun> runs, bool hasTitle,
               const ListSettings& settings, AttributePalette& palette, FlatWriter& out);

/// The list pass: each list found last in `text` is rendered. `startsNote` says
/// whether the text is the first part of its note.
void renderLists(RenderText& text, bool startsNote, const ListSettings& settings);

}  // namespace QZCore
