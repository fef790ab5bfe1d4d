// The text that a page of HTML shows, put together piece by piece: white space
// collapses, blocks become paragraphs, rows of tables become lines with tabs.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "richtext/flat_text.h"
#include "richtext/html_look.h"

namespace QZCore {

/// A list.
struct HtmlList {
    bool isNumbered = false;
    /// The lists around it; an item of it stands in these.
    TextLists around = {};
    /// One for each list around it, and itself.
    std::size_t depth = 1;
    std::size_t items = 0;
    /// The number of the last item.
    std::int64_t number = 0;
    /// The greatest number of an item.
    std::int64_t greatest = 0;
};

/// An item of a list.
struct HtmlItem {
    /// The list, by its place among all lists.
    std::size_t list = 0;
    String marker = {};
    TextAttributes attributes = {};
    bool isMarked = false;
};

/// Where a piece of text stands.
struct HtmlPlace {
    /// The look of the block around it.
    const HtmlLook& block;
    /// The attributes of that look.
    const TextAttributes& attributes;
    /// The item around it, or null.
    HtmlItem* item = nullptr;
};

/// Puts the text together.
class HtmlText {
public:
    // ---- Paragraphs ----

    /// What follows stands in a paragraph of its own.
    void endParagraph();
    /// A paragraph without text.
    void addEmptyParagraph(const HtmlPlace& place);
    /// The last paragraph has at least so much space behind it.
    void addSpaceAfter(double points);
    /// A line of cells starts; what follows until it ends is its first cell.
    void startRow();
    /// The next cell of the row.
    void startCell();
    /// The line of cells ends.
    void endRow();

    // ---- Within paragraphs ----

    void addText(StringView text, HtmlSpace space, const HtmlPlace& place,
                 const TextAttributes& attributes);
    /// Adds the character of an attachment.
    void addAttachment(const HtmlPlace& place, const TextAttributes& attributes);
    /// The rest of the paragraph stands on a line of its own.
    void breakLine(const HtmlPlace& place);

    /// The whole text. Items stand behind markers as wide as their `lists` need.
    [[nodiscard]] RichText take(const std::vector<HtmlList>& lists);

private:
    struct Paragraph {
        std::uint32_t end = 0;
        ParagraphStyle style;
        const HtmlItem* item = nullptr;
        bool hasMarker = false;
    };

    void addKept(StringView text, const HtmlPlace& place, std::uint32_t id);
    void addCollapsed(StringView text, bool keepsLines, const HtmlPlace& place, std::uint32_t id);
    void addLineEnd(char16_t end, const HtmlPlace& place);
    void open(const HtmlPlace& place);
    void writePending(const HtmlPlace& place, std::uint32_t id);
    void splitParagraph();
    void append(StringView text, std::uint32_t id);
    void writeLineEnds(std::size_t count, std::uint32_t id);
    [[nodiscard]] FlatText inParagraphStyles(const std::vector<HtmlList>& lists,
                                             AttributePalette& palette);

    AttributePalette palette_;
    String text_;
    std::vector<FlatRun> runs_;
    std::vector<Paragraph> paragraphs_;
    bool isOpen_ = false;      // the last paragraph
    bool isLineStart_ = true;  // white space shows nothing here
    bool hasSpace_ = false;    // to be added before more text of the line
    std::uint32_t spaceId_ = 0;
    std::uint32_t endId_ = 0;  // of the end of the last paragraph
    String lineEnds_;          // to be added before more text of the paragraph
    std::size_t tabs_ = 0;     // likewise
    bool isInRow_ = false;
    bool isFirstCell_ = true;   // the next one
    std::size_t rowStart_ = 0;  // the number of its first paragraph
};

}  // namespace QZCore
