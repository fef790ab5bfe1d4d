#include "outline_report.h"

#include "QZCore/richtext/blocks.h"
#include "stand_ins.h"

namespace qznote {
namespace {

using namespace QZCore;

/// Whether a list below the block is about what the block says.
bool canBeTitle(const Block& block) {
    return !block.isInList && !block.isQuoted && block.kind != BlockKind::Code;
}

class Writer {
public:
    Writer(const RichText& text, const TextAttributes& base)
        : text_(text), blocks_(BlockClassifier(base).blocksOf(text)) {}

    [[nodiscard]] std::string write() {
        const Block* before = nullptr;  // that is not empty
        bool inList = false;
        for (const Block& block : blocks_.blocks) {
            if (block.isInList && !inList) startList(before);
            inList = block.isInList;
            if (block.kind == BlockKind::Item) writeItem(block);
            if (blocks_.lineOf(block).length > 0) before = &block;
        }
        return std::move(out_);
    }

private:
    void startList(const Block* before) {
        if (!out_.empty()) out_ += "\n";
        indent_ = 0;
        if (before == nullptr || !canBeTitle(*before)) return;
        writeLine(blocks_.lineOf(*before));
        indent_ = 1;
    }

    void writeItem(const Block& block) {
        constexpr std::size_t kBlanksPerLevel = 2;
        const TextListItem& item = block.item;
        out_.append((indent_ + item.depth - 1) * kBlanksPerLevel, ' ');
        out_ += toUTF8(item.marker()) + " ";
        writeLine(blocks_.lineOf(block));
    }

    void writeLine(Range line) {
        out_ += toUTF8(withVisibleControls(plainText(text_, line))) + "\n";
    }

    const RichText& text_;
    Blocks blocks_;
    std::string out_;
    std::size_t indent_ = 0;
};

}  // namespace

std::string outlineReport(const RichText& text, const TextAttributes& base) {
    return Writer(text, base).write();
}

}  // namespace qznote
