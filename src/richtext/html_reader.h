// HTML read into rich text.
//
// Tags open and close elements on a stack, whatever is missing; each element
// gets its look from style sheets, hints and its own style; and what it holds
// goes to `HtmlText`. There is no tree, so nothing is deep.
#pragma once

#include <deque>
#include <memory>
#include <vector>

#include "richtext/html_images.h"
#include "richtext/html_looks.h"
#include "richtext/html_nesting.h"
#include "richtext/html_text.h"
#include "richtext/html_tokenizer.h"

namespace QZCore {

/// Reads one document.
class HtmlReader {
public:
    /// The text that `html`, whose lines end in line feeds, shows.
    [[nodiscard]] RichText read(StringView html);

private:
    static constexpr std::size_t kNoList = SIZE_MAX;

    /// An open element.
    struct Element {
        std::shared_ptr<HtmlStyled> styled;
        /// The place of the element whose look paragraphs have, this or one
        /// around.
        std::size_t block = 0;
        /// The list and the item around, or that this is.
        std::size_t list = kNoList;
        HtmlItem* item = nullptr;
        bool isShown = false;

        [[nodiscard]] std::uint32_t number() const { return styled->tag->element; }
        [[nodiscard]] const HtmlToken& tag() const { return styled->tag->token; }
        [[nodiscard]] const HtmlLook& look() const { return styled->look; }
    };

    void take(HtmlToken& token);
    void takeText(const String& text);
    void takeStart(HtmlToken& token);
    void takeEnd(const HtmlToken& token);
    void takeVoid(HtmlToken& token, std::uint32_t element);
    void addImage(const HtmlStyled& image);

    void keepForRoot(HtmlToken& token);
    void openRoot();
    void open(const std::shared_ptr<const HtmlTag>& tag);
    void openBlock(Element& element);
    void openList(Element& element);
    void openItem(Element& element);
    void closeTo(std::size_t size, bool dropsFormatting);
    void closeInnermost();

    [[nodiscard]] HtmlPlace place();

    HtmlLooks looks_;
    HtmlImages images_;
    HtmlNesting nesting_;
    std::vector<Element> open_;
    std::vector<HtmlList> lists_;
    std::deque<HtmlItem> items_;
    HtmlText text_;
    std::vector<HtmlToken> root_{{HtmlTokenKind::StartTag, u"html"},
                                 {HtmlTokenKind::StartTag, u"body"}};
    bool isInStyle_ = false;
    bool isAtPreStart_ = false;  // where a line feed shows nothing
};

}  // namespace QZCore
