// Runs of rich text as HTML within a block.
#pragma once

#include <string>
#include <vector>

#include "QZCore/richtext/rich_text.h"
#include "blocks.h"
#include "html_markup.h"

namespace qznote {

/// Writes runs, saying only how they differ from the block around them.
class RunMarkup {
public:
    /// Appends to `page`. All three must outlive this.
    RunMarkup(const QZCore::RichText& text, BlockClassifier& classifier, std::string& page)
        : text_(text), classifier_(classifier), page_(page) {}

    /// Writes the runs in `range` of a block with the look of `around`.
    void write(QZCore::Range range, const QZCore::TextAttributes& around);

    /// The CSS of how the look of `attributes` differs from `around`, but for
    /// added boldness and slant.
    [[nodiscard]] QZCore::String css(const QZCore::TextAttributes& attributes,
                                     const QZCore::TextAttributes& around);

private:
    [[nodiscard]] std::vector<Element> elementsFor(const QZCore::TextAttributes& attributes,
                                                   const QZCore::TextAttributes& around);
    void writeText(QZCore::StringView text, const QZCore::TextAttachment* attachment);
    void writeImage(const QZCore::TextAttachment& attachment);

    const QZCore::RichText& text_;
    BlockClassifier& classifier_;
    std::string& page_;
};

}  // namespace qznote
