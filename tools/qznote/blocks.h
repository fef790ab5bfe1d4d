// The blocks of a text: what a person sees as a paragraph, a heading, a stretch
// of code or an item of a list, told by the attributes of the text.
#pragma once

#include <map>
#include <vector>

#include "QZCore/foundation/range.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/rich_text.h"
#include "list_item.h"

namespace qznote {

/// What blocks are.
enum class BlockKind { Paragraph, Heading, Code, Item };

/// One block.
struct Block {
    BlockKind kind = BlockKind::Paragraph;
    /// Of a heading: from 1, the largest, to 6.
    int level = 0;
    /// Of an item: its place and marker.
    ListItem item = {};
    /// Whether it is a part of a quotation.
    bool isQuoted = false;
    /// Whether it is an item, or stands below the last item without an empty
    /// line between them and so belongs to it.
    bool isInList = false;
    /// Its lines, as indices: the first one and the one behind the last. Only
    /// code has more than one.
    std::size_t first = 0;
    std::size_t end = 0;
};

/// A text as blocks.
struct Blocks {
    /// What is to be shown of each paragraph: an item without its marker, and
    /// what belongs to an item without the blanks that it was indented by.
    std::vector<QZCore::Range> lines;
    /// The blocks in the order of the text. The two empty lines behind a list,
    /// one of which the list has brought, are one block.
    std::vector<Block> blocks;

    /// The text of a block of one line.
    [[nodiscard]] QZCore::Range lineOf(const Block& block) const { return lines[block.first]; }
};

/// Sorts paragraphs into blocks.
class BlockClassifier {
public:
    /// For a text most of which has the look of `base`.
    explicit BlockClassifier(const QZCore::TextAttributes& base);

    /// The blocks of `text`.
    [[nodiscard]] Blocks blocksOf(const QZCore::RichText& text);

    /// Whether text with these attributes looks like code: of fixed width in
    /// a family of its own, and with a background.
    [[nodiscard]] bool isCode(const QZCore::TextAttributes& attributes);

    /// Whether narrow and wide letters of the font take the same room.
    [[nodiscard]] bool isFixedWidth(const QZCore::Font& font);

private:
    [[nodiscard]] Block blockOf(const QZCore::RichText& text, QZCore::Range& line);
    [[nodiscard]] Block otherBlockOf(const QZCore::RichText& text, QZCore::Range paragraph);
    [[nodiscard]] bool isQuoted(const QZCore::TextAttributes& attributes) const;

    QZCore::TextAttributes base_;
    QZCore::FontManager fonts_ = QZCore::FontManager::shared();
    std::map<QZCore::String, bool> fixedWidths_;  // by family
};

}  // namespace qznote
