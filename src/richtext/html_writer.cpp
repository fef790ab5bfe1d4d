#include "QZCore/richtext/html.h"

#include <unordered_map>
#include <utility>

#include "QZCore/richtext/blocks.h"
#include "richtext/css_writing.h"
#include "richtext/html_containers.h"
#include "richtext/html_markup.h"
#include "richtext/html_runs.h"

namespace QZCore {
namespace {

// Blocks stand in a column, so that the space after one and the space before
// the next add up, as they do in rich text.
constexpr StringView kPageStyle =
    uR"(
:root { color-scheme: light dark; }
body { margin: 2rem auto; max-width: 44rem; padding: 0 1.5rem; overflow-wrap: anywhere; }
main, blockquote { display: flex; flex-direction: column; }
p, pre, li, h1, h2, h3, h4, h5, h6 { margin: 0; min-height: 1.2em; font-size: 1em;
  font-family: inherit; white-space: pre-wrap; tab-size: 4; unicode-bidi: plaintext; }
ul, ol, blockquote { margin: 0; white-space: normal; }
ul, ol { padding-inline-start: 1.75em; list-style-type: disc; }
ol { list-style-type: decimal; }
blockquote p, blockquote pre { border-inline-start: 3px solid rgba(128,128,128,0.4); }
pre { padding: 0.75em 1em; border-radius: 6px; }
code, mark { color: inherit; border-radius: 3px; padding: 0.1em 0.2em; font: inherit; }
pre code { padding: 0; }
li pre { margin: 0.4em 0; }
a { color: inherit; text-decoration: none; }
img { max-width: 100%; vertical-align: text-bottom; }
)";

TextAttributes withFont(const TextAttributes& base) {
    if (base.font() != nullptr) return base;
    return base.withAttribute(NSFontAttributeName,
                              Value::boxed(FontManager::shared().userFont(kFontDefaultSize)));
}

/// What tells blocks apart that are written in different ways.
struct BlockFeatures {
    /// The attributes that the block starts with.
    TextAttributes first;
    BlockKind kind = BlockKind::Paragraph;
    int level = 0;
    bool isInList = false;
    bool isQuotedOn = false;  // the next block is a part of the same quotation

    friend bool operator==(const BlockFeatures&, const BlockFeatures&) = default;

    struct Hash {
        std::size_t operator()(const BlockFeatures& block) const { return block.first.hash(); }
    };
};

/// The element of a block. An item stands in its list by itself, and needs one
/// only to carry a style.
String elementOf(const BlockFeatures& block, StringView style) {
    switch (block.kind) {
        case BlockKind::Heading:
            return u"h" + integerString(block.level);
        case BlockKind::Code:
            return u"pre";
        case BlockKind::Item:
            return style.empty() ? u"" : u"p";
        case BlockKind::Paragraph:
            break;
    }
    return u"p";
}

/// What is written around the runs of a block.
struct BlockMarkup {
    /// What its runs take from it.
    TextAttributes look;
    /// Its tags, where it needs any.
    Elements elements;
};

class Writer {
public:
    Writer(const RichText& text, const HtmlOptions& options)
        : text_(text),
          options_(options),
          base_(withFont(options.base)),
          classifier_(base_),
          blocks_(classifier_.blocksOf(text)),
          containers_(out_, options.form),
          runs_(text, classifier_, out_, options.form) {}

    [[nodiscard]] String write() {
        out_.reserve(2 * text_.length());
        isFragment() ? writeFragment() : writePage();
        return std::move(out_);
    }

private:
    [[nodiscard]] bool isFragment() const { return options_.form == HtmlForm::Fragment; }

    void writePage() {
        out_ += u"<!doctype html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n";
        out_ += u"<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n";
        out_ += u"<title>";
        appendEscaped(out_, title());
        out_ += u"</title>\n<style>";
        out_ += kPageStyle;
        out_ += u"</style>\n</head>\n";
        out_ += Element(u"body", markupAttribute(u"style", styleOfBody())).start + u"\n<main>\n";
        writeBlocks();
        out_ += u"</main>\n</body>\n</html>\n";
    }

    void writeFragment() {
        out_ += Element(u"div", markupAttribute(u"style", styleOfBody())).start + u"\n";
        writeBlocks();
        out_ += u"</div>\n";
    }

    void writeBlocks() {
        for (std::size_t i = 0; i < blocks_.blocks.size(); ++i) writeBlock(i);
        containers_.leaveAll();
    }

    [[nodiscard]] String title() const {
        for (const Block& block : blocks_.blocks) {
            if (block.kind == BlockKind::Heading) return text_.string(blocks_.lineOf(block));
        }
        return options_.title;
    }

    [[nodiscard]] String styleOfBody() {
        String css;
        const Font& font = *base_.font();
        const bool fixed = classifier_.isFixedWidth(font);
        css += cssOfFamily(font, fixed ? FontKind::FixedWidth : FontKind::Proportional);
        css += u"font-size:" + cssLength(font.pointSize) + u";";
        const String colors = runs_.css(base_.withoutAttribute(NSFontAttributeName), {});
        // Chosen colours suit one scheme.
        return colors.empty() ? css : css + colors + u"color-scheme:light;";
    }

    /// What the runs of a block take from the block.
    [[nodiscard]] TextAttributes lookOf(const BlockFeatures& block) const {
        if (block.kind == BlockKind::Code) return block.first;
        if (block.kind != BlockKind::Heading) return base_;
        return block.first.withAttribute(NSBackgroundColorAttributeName,
                                         base_.objectForKey(NSBackgroundColorAttributeName));
    }

    /// Whether the block behind this one is a part of the same quotation.
    [[nodiscard]] bool isQuotedOn(std::size_t index) const {
        const std::vector<Block>& blocks = blocks_.blocks;
        return index + 1 < blocks.size() && blocks[index].isQuoted && blocks[index + 1].isQuoted;
    }

    /// The traits that runs of the block do not add, since it has them.
    [[nodiscard]] String cssOfTraits(const BlockFeatures& block, const TextAttributes& look) const {
        if (look.font() == nullptr) return {};
        const std::uint32_t added = look.font()->traits & ~base_.font()->traits;
        String css;
        if ((added & kFontItalic) != 0) css += u"font-style:italic;";
        const bool isHeading = block.kind == BlockKind::Heading;
        if ((added & kFontBold) != 0 && !isHeading) css += u"font-weight:bold;";
        return css;
    }

    [[nodiscard]] String styleOf(const BlockFeatures& block, const TextAttributes& look) {
        const double size = look.font() == nullptr ? kFontDefaultSize : look.font()->pointSize;
        String css;
        // A page says these for all of its blocks.
        if (isFragment()) css += u"margin:0;white-space:pre-wrap;";
        css += runs_.css(look, base_);
        css += cssOfTraits(block, look);
        const ParagraphStyle* first = block.first.paragraphStyle();
        if (first == nullptr) return css;
        ParagraphStyle style = *first;
        // The list around an item indents it, and what is below it.
        if (block.kind == BlockKind::Item) {
            style.headIndent = style.firstLineHeadIndent = 0;
        } else if (block.isInList) {
            const double indent = itemIndentOf(style);
            style.headIndent -= indent;
            style.firstLineHeadIndent -= indent;
        }
        // The bar along a quotation goes on between its paragraphs.
        if (block.isQuotedOn && style.paragraphSpacing != 0) {
            css += u"padding-bottom:" + cssLength(std::exchange(style.paragraphSpacing, 0)) + u";";
        }
        return css + cssOfParagraph(style, size);
    }

    /// Whether the marker of the item would stand beside the paragraph below it.
    [[nodiscard]] bool isEmptyAbovePart(std::size_t index) const {
        const std::vector<Block>& blocks = blocks_.blocks;
        const bool isEmptyItem =
            blocks[index].kind == BlockKind::Item && blocks_.lineOf(blocks[index]).length == 0;
        return isEmptyItem && index + 1 < blocks.size() && blocks[index + 1].isInList &&
               blocks[index + 1].kind != BlockKind::Item;
    }

    [[nodiscard]] BlockFeatures featuresOf(std::size_t index) const {
        const Block& block = blocks_.blocks[index];
        return {text_.attributesAtIndex(blocks_.lineOf(block).location), block.kind, block.level,
                block.isInList, isQuotedOn(index)};
    }

    [[nodiscard]] BlockMarkup markupFor(const BlockFeatures& block) {
        BlockMarkup markup{lookOf(block), {}};
        const String style = styleOf(block, markup.look);
        const String name = elementOf(block, style);
        if (!name.empty()) markup.elements.emplace_back(name, markupAttribute(u"style", style));
        return markup;
    }

    void writeBlock(std::size_t index) {
        const Block& block = blocks_.blocks[index];
        containers_.enter(block);
        const auto [known, isNew] = markups_.try_emplace(featuresOf(index));
        if (isNew) known->second = markupFor(known->first);
        const BlockMarkup& markup = known->second;
        for (const Element& element : markup.elements) out_ += element.start;
        block.kind == BlockKind::Code ? writeCode(block, markup.look)
                                      : writeLine(index, markup.look);
        for (const Element& element : markup.elements) out_ += element.end;
        if (!block.isInList || block.isQuoted) out_ += u'\n';
    }

    void writeLine(std::size_t index, const TextAttributes& look) {
        const Range line = blocks_.lineOf(blocks_.blocks[index]);
        runs_.write(line, look);
        if (line.length == 0 && (isFragment() || isEmptyAbovePart(index))) out_ += u"<br>";
    }

    /// Readers drop a line feed behind the tag, and one at the end.
    void writeCode(const Block& block, const TextAttributes& look) {
        out_ += isFragment() ? u"\n" : u"<code>";
        for (std::size_t i = block.first; i < block.end; ++i) {
            if (i > block.first) out_ += u"\n";
            runs_.write(blocks_.lines[i], look);
        }
        if (blocks_.lines[block.end - 1].length == 0) out_ += u"\n";
        if (!isFragment()) out_ += u"</code>";
    }

    const RichText& text_;
    const HtmlOptions& options_;
    TextAttributes base_;
    BlockClassifier classifier_;
    Blocks blocks_;
    String out_;
    HtmlContainers containers_;
    RunMarkup runs_;
    std::unordered_map<BlockFeatures, BlockMarkup, BlockFeatures::Hash> markups_;
};

}  // namespace

String htmlFromRichText(const RichText& text, const HtmlOptions& options) {
    return Writer(text, options).write();
}

}  // namespace QZCore
