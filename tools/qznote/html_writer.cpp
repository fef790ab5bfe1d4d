#include "html_writer.h"

#include "css.h"
#include "html_blocks.h"
#include "html_markup.h"
#include "html_runs.h"
#include "paragraphs.h"

namespace qznote {
namespace {

using namespace QZCore;

// Blocks stand in a column, so that the space after one and the space before
// the next add up, as they do in rich text.
constexpr std::string_view kPageStyle = R"(
:root { color-scheme: light dark; }
body { margin: 2rem auto; max-width: 44rem; padding: 0 1.5rem; overflow-wrap: anywhere; }
main { display: flex; flex-direction: column; }
p, pre, h1, h2, h3, h4, h5, h6 { margin: 0; min-height: 1.2em; font-size: 1em; font-family: inherit;
  white-space: pre-wrap; tab-size: 4; unicode-bidi: plaintext; }
pre { padding: 0.75em 1em; border-radius: 6px; }
code, mark { color: inherit; border-radius: 3px; padding: 0.1em 0.2em; font: inherit; }
pre code { padding: 0; }
a { color: inherit; text-decoration: none; }
img { max-width: 100%; vertical-align: text-bottom; }
)";

class Writer {
public:
    Writer(const RichText& text, const HtmlPage& page)
        : text_(text),
          page_(page),
          paragraphs_(paragraphsOf(text.string())),
          classifier_(page.base),
          blocks_(classifier_.blocksOf(text, paragraphs_)),
          runs_(text, classifier_, out_) {}

    [[nodiscard]] std::string write() {
        out_ = "<!doctype html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n";
        out_ += "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n";
        out_ += "<title>" + escapedMarkup(title()) + "</title>\n<style>";
        out_ += kPageStyle;
        out_ +=
            "</style>\n</head>\n<body" + markupAttribute("style", styleOfBody()) + ">\n<main>\n";
        for (const Block& block : blocks_) writeBlock(block);
        out_ += "</main>\n</body>\n</html>\n";
        return std::move(out_);
    }

private:
    [[nodiscard]] String title() const {
        for (const Block& block : blocks_) {
            if (block.kind == BlockKind::Heading) return text_.string(paragraphs_[block.first]);
        }
        return page_.title;
    }

    [[nodiscard]] String styleOfBody() {
        String css;
        if (const Font* font = page_.base.font()) {
            const bool fixed = classifier_.isFixedWidth(*font);
            css += cssOfFamily(*font, fixed ? FontKind::FixedWidth : FontKind::Proportional);
            css += u"font-size:" + cssLength(font->pointSize) + u";";
        }
        const String colors = runs_.css(page_.base.withoutAttribute(NSFontAttributeName), {});
        // Chosen colours suit one scheme.
        return colors.empty() ? css : css + colors + u"color-scheme:light;";
    }

    /// What the runs of a block take from the block.
    [[nodiscard]] TextAttributes lookOf(const Block& block) const {
        const TextAttributes first = text_.attributesAtIndex(paragraphs_[block.first].location);
        switch (block.kind) {
            case BlockKind::Code:
                return first;
            case BlockKind::Heading:
                return first.withAttribute(NSBackgroundColorAttributeName,
                                           page_.base.objectForKey(NSBackgroundColorAttributeName));
            case BlockKind::Paragraph:
                break;
        }
        return page_.base;
    }

    [[nodiscard]] String styleOf(const Block& block, const TextAttributes& look) {
        constexpr double kUsualSize = 12;
        const TextAttributes first = text_.attributesAtIndex(paragraphs_[block.first].location);
        const double size = look.font() == nullptr ? kUsualSize : look.font()->pointSize;
        String css = runs_.css(look, page_.base);
        if (const ParagraphStyle* style = first.paragraphStyle())
            css += cssOfParagraph(*style, size);
        return css;
    }

    void writeBlock(const Block& block) {
        const TextAttributes look = lookOf(block);
        const std::string name = block.kind == BlockKind::Heading
                                     ? "h" + std::to_string(block.level)
                                 : block.kind == BlockKind::Code ? "pre"
                                                                 : "p";
        out_ += "<" + name + markupAttribute("style", styleOf(block, look)) + ">";
        if (block.kind == BlockKind::Code) out_ += "<code>";
        for (std::size_t i = block.first; i < block.end; ++i) {
            if (i > block.first) out_ += "\n";
            runs_.write(paragraphs_[i], look);
        }
        if (block.kind == BlockKind::Code) out_ += "</code>";
        out_ += "</" + name + ">\n";
    }

    const RichText& text_;
    const HtmlPage& page_;
    std::vector<Range> paragraphs_;
    BlockClassifier classifier_;
    std::vector<Block> blocks_;
    std::string out_;
    RunMarkup runs_;
};

}  // namespace

std::string htmlPage(const RichText& text, const HtmlPage& page) {
    return Writer(text, page).write();
}

}  // namespace qznote
