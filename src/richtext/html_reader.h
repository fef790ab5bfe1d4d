// HTML read into rich text.
//
// Tags open and close elements on a stack, whatever is missing; each element
// gets its look from style sheets, hints and its own style; and what it holds
// goes to `HtmlText`. There is no tree, so nothing is deep.
#pragma once

#include <deque>
#include <optional>
#include <vector>

#include "richtext/css_rules.h"
#include "richtext/html_attributes.h"
#include "richtext/html_images.h"
#include "richtext/html_nesting.h"
#include "richtext/html_text.h"
#include "richtext/html_tokenizer.h"

namespace QZCore {

/// Reads one document.
class HtmlReader {
public:
    HtmlReader();

    /// The text that `html`, whose lines end in line feeds, shows.
    [[nodiscard]] RichText read(StringView html);

private:
    static constexpr std::size_t kNoList = SIZE_MAX;

    /// An open element.
    struct Element {
        HtmlToken tag = {};
        HtmlLook look = {};
        /// Made when text first needs them.
        std::optional<TextAttributes> attributes = {};
        /// The place of the element whose look paragraphs have, this or one
        /// around.
        std::size_t block = 0;
        /// The list and the item around, or that this is.
        std::size_t list = kNoList;
        HtmlItem* item = nullptr;
        bool isShown = false;
    };

    void take(HtmlToken& token);
    void takeText(const String& text);
    void takeStart(HtmlToken& token);
    void takeEnd(const HtmlToken& token);
    void takeVoid(const HtmlToken& tag);

    void keepForRoot(HtmlToken& tag);
    void openRoot();
    void open(HtmlToken tag);
    void openBlock(Element& element);
    void openList(Element& element);
    void openItem(Element& element);
    void closeTo(std::size_t size, bool dropsFormatting);
    void closeInnermost();

    [[nodiscard]] HtmlLook lookOf(const HtmlToken& tag);
    [[nodiscard]] CssKeys keysOf(const HtmlToken& tag);
    [[nodiscard]] HtmlPlace place();
    [[nodiscard]] const TextAttributes& attributesOf(Element& element);

    CssNames names_;  // go on from those of the default styles
    CssRules rules_{names_};
    HtmlAttributes attributes_;
    HtmlImages images_;
    HtmlNesting nesting_;
    std::vector<Element> open_;
    std::vector<CssKeys> keys_;  // of the open elements
    std::vector<HtmlList> lists_;
    std::deque<HtmlItem> items_;
    HtmlText text_;
    std::vector<HtmlToken> root_{{HtmlTokenKind::StartTag, u"html"},
                                 {HtmlTokenKind::StartTag, u"body"}};
    bool isInStyle_ = false;
    bool isAtPreStart_ = false;  // where a line feed shows nothing
};

}  // namespace QZCore
