// Runs of rich text as HTML within a block.
#pragma once

#include <unordered_map>

#include "QZCore/richtext/blocks.h"
#include "QZCore/richtext/html.h"
#include "richtext/html_markup.h"

namespace QZCore {

/// Writes runs, saying only how they differ from the block around them.
class RunMarkup {
public:
    /// Appends to `page`. All three must outlive this.
    RunMarkup(const RichText& text, BlockClassifier& classifier, String& page, HtmlForm form)
        : text_(text),
          units_(text.string()),
          classifier_(classifier),
          page_(page),
          nested_(page),
          form_(form) {}

    /// Writes the runs in `range` of a block with the look of `around`.
    void write(Range range, const TextAttributes& around);

    /// The CSS of how the look of `attributes` differs from `around`, but for
    /// added boldness and slant.
    [[nodiscard]] String css(const TextAttributes& attributes, const TextAttributes& around);

private:
    struct Hash {
        std::size_t operator()(const TextAttributes& attributes) const { return attributes.hash(); }
    };
    /// The elements that each look needs.
    using ElementsOfLooks = std::unordered_map<TextAttributes, Elements, Hash>;

    [[nodiscard]] Elements elementsFor(const TextAttributes& attributes,
                                       const TextAttributes& around);
    void writeText(StringView text);
    void writeText(StringView text, const TextAttachment& attachment);
    void writeImage(const TextAttachment& attachment);

    const RichText& text_;
    const String units_;
    BlockClassifier& classifier_;
    String& page_;
    NestedElements nested_;
    HtmlForm form_;
    std::unordered_map<TextAttributes, ElementsOfLooks, Hash> elements_;  // by the look around
};

}  // namespace QZCore
