// The blocks of a page: what a person sees as a paragraph, a heading or a
// stretch of code, told by the attributes of the text.
#pragma once

#include <map>
#include <vector>

#include "QZCore/foundation/range.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// The elements of blocks.
enum class BlockKind { Paragraph, Heading, Code };

/// One block.
struct Block {
    BlockKind kind = BlockKind::Paragraph;
    /// Of a heading: from 1, the largest, to 6.
    int level = 0;
    /// Its paragraphs, as indices: the first one and the one behind the last.
    std::size_t first = 0;
    std::size_t end = 0;
};

/// Sorts paragraphs into blocks.
class BlockClassifier {
public:
    /// For a text most of which has the look of `base`.
    explicit BlockClassifier(const QZCore::TextAttributes& base);

    /// The blocks of `text`, whose paragraphs are given.
    [[nodiscard]] std::vector<Block> blocksOf(const QZCore::RichText& text,
                                              const std::vector<QZCore::Range>& paragraphs);

    /// Whether text with these attributes looks like code: of fixed width in
    /// a family of its own, and with a background.
    [[nodiscard]] bool isCode(const QZCore::TextAttributes& attributes);

    /// Whether narrow and wide letters of the font take the same room.
    [[nodiscard]] bool isFixedWidth(const QZCore::Font& font);

private:
    [[nodiscard]] Block blockOf(const QZCore::RichText& text, QZCore::Range paragraph);

    QZCore::TextAttributes base_;
    QZCore::FontManager fonts_ = QZCore::FontManager::shared();
    std::map<QZCore::String, bool> fixedWidths_;  // by family
};

}  // namespace qznote
