// A Markdown list as rich text with text lists.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "QZCore/markdown/style_sheet.h"
#include "QZCore/markdown/syntax.h"
#include "markdown/flat_writer.h"
#include "markdown/list_outline.h"
#include "markdown/list_writer.h"
#include "markdown/render_text.h"

namespace QZCore {

/// What lists are rendered by.
struct ListSettings {
    const StyleSheet& styles;
    const Preferences& preferences;
    /// The row of single items.
    const MarkdownExpression& listLine;
};

/// Renders the lists of one note.
class ListRenderer {
public:
    /// Attributes are numbered by `palette`. All must outlive this.
    ListRenderer(const ListSettings& settings, AttributePalette& palette)
        : settings_(settings),
          palette_(palette),
          reader_(settings.listLine, settings.preferences) {}

    /// Adds the list `markdown` to `out` as rich text. Its attributes are read
    /// from `runs`; numbers with the mark to be ignored keep it.
    void write(const FlatSlice& markdown, std::span<const FlatRun> runs, bool hasTitle,
               FlatWriter& out);

private:
    [[nodiscard]] ListWriter& writerFor(const TextAttributes& prefix, bool hasTitle);
    [[nodiscard]] TextAttributes commonAttributes(std::span<const FlatRun> runs,
                                                  const FlatSlice& list);

    ListSettings settings_;
    AttributePalette& palette_;
    ListLineReader reader_;
    // By the number of the markers' attributes, and whether the first level is
    // indented.
    std::map<std::pair<std::uint32_t, bool>, ListWriter> writers_;
    // By the number of attributes: the list in which they were met last.
    std::vector<std::uint32_t> metIn_;
    std::uint32_t list_ = 0;
    // Buffers, made once.
    String text_;
    std::vector<std::uint32_t> children_;
    std::vector<std::uint32_t> listsBelow_;
};

/// The list pass: each list found last in `text` is rendered. `startsNote` says
/// whether the text is the first part of its note.
void renderLists(RenderText& text, bool startsNote, ListRenderer& renderer);

}  // namespace QZCore
