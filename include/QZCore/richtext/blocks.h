// The blocks of a text: what a person sees as a paragraph, a heading, a stretch
// of code or an item of a list, told by the attributes of the text. Writers of
// other formats start from them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/range.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/list_items.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

/// What blocks are.
enum class BlockKind : std::uint8_t { Paragraph, Heading, Code, Item };

/// One block.
struct Block {
    /// What it is.
    BlockKind kind = BlockKind::Paragraph;
    /// Of a heading: from 1, the largest, to 6.
    int level = 0;
    /// Of an item: its place and marker.
    TextListItem item = {};
    /// Whether it is a part of a quotation.
    bool isQuoted = false;
    /// Whether it is an item, or stands below the last item without an empty
    /// line or space between them and so belongs to it.
    bool isInList = false;
    /// The index of its first line.
    std::size_t first = 0;
    /// The index behind its last line. Only code has more than one.
    std::size_t end = 0;
};

/// A text as blocks.
struct Blocks {
    /// What is to be shown of each paragraph: an item without its marker, and
    /// what belongs to an item without the blanks that it was indented by.
    std::vector<Range> lines;
    /// The blocks in the order of the text. The two empty lines behind a list,
    /// one of which the list has brought, are one block.
    std::vector<Block> blocks;

    /// The text of a block of one line.
    [[nodiscard]] Range lineOf(const Block& block) const { return lines[block.first]; }
};

/// Sorts paragraphs into blocks.
class QZ_EXPORT BlockClassifier {
public:
    /// For a text most of which has the look of `base`.
    explicit BlockClassifier(const TextAttributes& base);

    /// The blocks of `text`.
    [[nodiscard]] Blocks blocksOf(const RichText& text);

    /// Whether text with these attributes looks like code: of fixed width in
    /// a family of its own, and with a background.
    [[nodiscard]] bool isCode(const TextAttributes& attributes);

    /// Whether narrow and wide letters of the font take the same room.
    [[nodiscard]] bool isFixedWidth(const Font& font);

private:
    struct Line;

    [[nodiscard]] Block blockOf(const RichText& text, Line& line);
    [[nodiscard]] Block otherBlockOf(const RichText& text, const Line& line);
    [[nodiscard]] bool isQuoted(const TextAttributes& attributes) const;

    TextAttributes base_;
    FontManager fonts_ = FontManager::shared();
    std::vector<std::pair<String, bool>> fixedWidths_;  // by family, of which texts have few
};

}  // namespace QZCore
