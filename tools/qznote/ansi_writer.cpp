#include "ansi_writer.h"

#include <algorithm>

#include "QZCore/richtext/blocks.h"
#include "list_columns.h"
#include "stand_ins.h"
#include "terminal.h"

namespace qznote {
namespace {

using namespace QZCore;

constexpr std::size_t kMostColumns = 40;

String blanks(std::size_t count) { return String(count, u' '); }

/// The columns that stand for the indent of a paragraph.
std::size_t indentOf(const ParagraphStyle* style) {
    constexpr double kColumnWidth = 6;
    if (style == nullptr || !(style->firstLineHeadIndent > 0)) return 0;
    return static_cast<std::size_t>(
        std::min(style->firstLineHeadIndent / kColumnWidth, double{kMostColumns}));
}

class Writer {
public:
    Writer(const RichText& text, const TextAttributes& base)
        : text_(text),
          blocks_(BlockClassifier(base).blocksOf(text)),
          columns_(columnsOfLists(blocks_.blocks)) {}

    [[nodiscard]] std::string write() {
        for (std::size_t i = 0; i < blocks_.blocks.size(); ++i) {
            const Block& block = blocks_.blocks[i];
            for (std::size_t line = block.first; line < block.end; ++line) {
                writeMargin(block, columns_[i]);
                writeLine(block, blocks_.lines[line]);
            }
        }
        return terminal_.take();
    }

private:
    /// What stands before the text of a line.
    void writeMargin(const Block& block, const ListColumns& columns) {
        if (block.kind == BlockKind::Item) {
            const String marker = block.item.marker();
            const std::size_t end = std::min(columns.markerEnd, kMostColumns);
            terminal_.write(blanks(end - std::min(end, marker.size())));
            // The tab behind the marker looks as the marker does.
            terminal_.write(marker, text_.attributesAtIndex(blocks_.lineOf(block).location - 1));
            terminal_.write(u" ");
        } else {
            terminal_.write(blanks(std::min(columns.text, kMostColumns + 1)));
        }
        if (block.isQuoted) terminal_.write(u"\u2502 ");
    }

    void writeLine(const Block& block, Range line) {
        const TextAttributes first = text_.attributesAtIndex(line.location);
        if (block.kind == BlockKind::Code) {
            // An empty line of it may look otherwise.
            terminal_.fillLine(text_.attributesAtIndex(blocks_.lineOf(block).location));
        } else if (block.kind != BlockKind::Item && !block.isQuoted && line.length > 0) {
            terminal_.write(blanks(indentOf(first.paragraphStyle())));
        }
        for (const TextRunView run : text_.runs(line)) {
            terminal_.write(withImagesNamed(text_.string(run.range), run.attributes),
                            run.attributes);
        }
        terminal_.endLine();
    }

    const RichText& text_;
    Blocks blocks_;
    std::vector<ListColumns> columns_;
    Terminal terminal_;
};

}  // namespace

std::string ansiText(const RichText& text, const TextAttributes& base) {
    return Writer(text, base).write();
}

}  // namespace qznote
