#include "markdown_writer.h"

#include <algorithm>
#include <utility>

#include "QZCore/markdown/writing.h"
#include "QZCore/richtext/blocks.h"

namespace qznote {
namespace {

using namespace QZCore;

/// The marker of an item with the blanks before it.
String markerOf(const TextListItem& item) {
    constexpr std::size_t kMostBlanks = 4000;
    const String blanks(std::min((item.depth - 1) * 4, kMostBlanks), u' ');
    return blanks + (item.isNumbered() ? item.marker() : String(u"-")) + u" ";
}

/// Copies a text with the marks of its blocks in it.
class Marking {
public:
    Marking(const RichText& text, const TextAttributes& base)
        : text_(text), blocks_(BlockClassifier(base).blocksOf(text)) {}

    [[nodiscard]] RichText marked() {
        for (const Block& block : blocks_.blocks) addBlock(block);
        copyTo(text_.length());
        return std::move(out_);
    }

private:
    void copyTo(std::size_t end) {
        out_.appendAttributedString(text_.attributedSubstringFromRange({at_, end - at_}));
        at_ = end;
    }

    void addBlock(const Block& block) {
        const Range first = blocks_.lineOf(block);
        if (block.kind == BlockKind::Item) {
            const std::size_t tabsAndMarker = block.item.marker().size() + 2;
            copyTo(first.location - tabsAndMarker);
            at_ = first.location;
            out_.appendString(markerOf(block.item));
        } else if (block.isQuoted) {
            copyTo(first.location);
            out_.appendString(u"> ");
        } else if (block.kind == BlockKind::Code) {
            addCode(first.location, blocks_.lines[block.end - 1].end());
        }
    }

    /// Nothing is marked within code.
    void addCode(std::size_t start, std::size_t end) {
        copyTo(start);
        out_.appendString(u"```\n" + text_.string({start, end - start}) + u"\n```");
        at_ = end;
    }

    const RichText& text_;
    Blocks blocks_;
    RichText out_;
    std::size_t at_ = 0;
};

}  // namespace

std::string markdownNote(const RichText& text, const TextAttributes& base) {
    const Preferences preferences({{u"Markdown Replace New Lines with br", false}});
    return toUTF8(markdownString(Marking(text, base).marked(), preferences));
}

}  // namespace qznote
