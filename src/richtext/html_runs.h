// Runs of rich text as HTML within a block.
#pragma once

#include <string>
#include <vector>

#include "QZCore/richtext/blocks.h"
#include "QZCore/richtext/html.h"
#include "richtext/html_markup.h"

namespace QZCore {

/// Writes runs, saying only how they differ from the block around them.
class RunMarkup {
public:
    /// Appends to `page`. All three must outlive this.
    RunMarkup(const RichText& text, BlockClassifier& classifier, std::string& page, HtmlForm form)
        : text_(text), classifier_(classifier), page_(page), form_(form) {}

    /// Writes the runs in `range` of a block with the look of `around`.
    void write(Range range, const TextAttributes& around);

    /// The CSS of how the look of `attributes` differs from `around`, but for
    /// added boldness and slant.
    [[nodiscard]] String css(const TextAttributes& attributes, const TextAttributes& around);

private:
    [[nodiscard]] std::vector<Element> elementsFor(const TextAttributes& attributes,
                                                   const TextAttributes& around);
    void writeText(StringView text);
    void writeText(StringView text, const TextAttachment& attachment);
    void writeImage(const TextAttachment& attachment);

    const RichText& text_;
    BlockClassifier& classifier_;
    std::string& page_;
    HtmlForm form_;
};

}  // namespace QZCore
