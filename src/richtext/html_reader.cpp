#include "richtext/html_reader.h"

#include <algorithm>
#include <utility>

#include "richtext/html_elements.h"

namespace QZCore {
namespace {

constexpr StringView kBlanks = u" \t\n\f";

bool showsNothing(const String& text) { return text.find_first_not_of(kBlanks) == text.npos; }

/// Whether what is left open in the element ends with it.
bool endsFormatting(std::uint32_t element) {
    return isHtml(element, kTablePart) || element == htmlElement(u"table");
}

}  // namespace

RichText HtmlReader::read(StringView html) {
    HtmlTokenizer tokenizer(html);
    HtmlToken token;
    while (tokenizer.next(token)) take(token);
    closeTo(0, true);
    return text_.take(lists_);
}

void HtmlReader::take(HtmlToken& token) {
    switch (token.kind) {
        case HtmlTokenKind::Text:
            return takeText(token.text);
        case HtmlTokenKind::StartTag:
            return takeStart(token);
        case HtmlTokenKind::EndTag:
            return takeEnd(token);
    }
}

// ---- Texts ------------------------------------------------------------------

void HtmlReader::takeText(const String& text) {
    if (std::exchange(isInStyle_, false)) return looks_.addSheet(text);
    if (open_.empty()) {
        if (showsNothing(text)) return;
        openRoot();
    }
    Element& element = open_.back();
    StringView shown = text;
    if (std::exchange(isAtPreStart_, false) && shown.starts_with(u'\n')) shown.remove_prefix(1);
    if (element.look().isHidden) return;
    text_.addText(shown, element.look().space, place(), looks_.attributesOf(*element.styled));
    element.isShown = true;
}

HtmlPlace HtmlReader::place() {
    const Element& element = open_.back();
    const Element& block = open_[element.block];
    return {block.look(), looks_.attributesOf(*block.styled), element.item};
}

// ---- Tags -------------------------------------------------------------------

/// The outermost elements are there without tags; tags add what they say.
void HtmlReader::keepForRoot(HtmlToken& token) {
    if (!open_.empty() || token.text == u"head") return;
    root_[token.text == u"html" ? 0 : 1].attributes = std::move(token.attributes);
}

void HtmlReader::openRoot() {
    for (HtmlToken& token : root_) {
        const std::uint32_t element = nesting_.numberOf(token.text);
        open(looks_.tagOf(std::move(token), element));
    }
}

void HtmlReader::takeStart(HtmlToken& token) {
    const std::uint32_t element = nesting_.numberOf(token.text);
    isAtPreStart_ = isHtml(element, kKept);
    if (isHtml(element, kPage)) return keepForRoot(token);
    isInStyle_ = element == htmlElement(u"style");
    // Their contents, if any, are the next text, and show nothing.
    if (open_.empty() && isHtml(element, kHead)) {
        const bool isOpened = element == htmlElement(u"title") ||
                              element == htmlElement(u"script") ||
                              element == htmlElement(u"template");
        if (isOpened) open(looks_.tagOf(std::move(token), element));
        return;
    }
    if (open_.empty()) openRoot();
    const std::size_t left = nesting_.leftByStartOf(element);
    if (left < open_.size()) closeTo(left, endsFormatting(element));
    if (isHtml(element, kVoid)) return takeVoid(token, element);
    open(looks_.tagOf(std::move(token), element));
}

void HtmlReader::takeEnd(const HtmlToken& token) {
    const std::uint32_t element = nesting_.numberOf(token.text);
    isAtPreStart_ = isInStyle_ = false;
    if (isHtml(element, kPage)) return;
    if (element == htmlElement(u"br")) {
        HtmlToken start{HtmlTokenKind::StartTag, token.text};
        return takeStart(start);
    }
    const std::size_t left = nesting_.leftByEndOf(element);
    if (left < open_.size()) closeTo(left, endsFormatting(element));
}

void HtmlReader::takeVoid(HtmlToken& token, std::uint32_t element) {
    constexpr StringView kRule = u"\u2014\u2014\u2014";
    const auto tag = looks_.tagOf(std::move(token), element);
    const auto styled = looks_.styled(tag, open_.back().styled);
    if (styled->look.isHidden) return;
    if (element == htmlElement(u"br")) {
        text_.breakLine(place());
    } else if (element == htmlElement(u"hr")) {
        text_.endParagraph();
        text_.addText(kRule, HtmlSpace::Keep, place(), looks_.attributesOf(*open_.back().styled));
        text_.endParagraph();
    } else if (element == htmlElement(u"img")) {
        return addImage(*styled);
    } else {
        return;
    }
    open_.back().isShown = true;
}

void HtmlReader::addImage(const HtmlStyled& image) {
    const TextAttachment attachment = images_.imageOf(image.tag->token, image.look);
    const bool isNothing = attachment.image == nullptr && attachment.alternativeText.empty();
    if (isNothing && attachment.source.empty()) return;
    const TextAttributes& around = looks_.attributesOf(*open_.back().styled);
    text_.addAttachment(place(),
                        around.withAttribute(NSAttachmentAttributeName, Value::boxed(attachment)));
    open_.back().isShown = true;
}

// ---- Elements ---------------------------------------------------------------

void HtmlReader::open(const std::shared_ptr<const HtmlTag>& tag) {
    Element element;
    if (!open_.empty()) {
        element = open_.back();
        element.isShown = false;
    }
    element.styled = looks_.styled(tag, element.styled);
    if (element.look().display != HtmlDisplay::Inline && !element.look().isHidden) {
        openBlock(element);
    }
    nesting_.open(element.number());
    open_.push_back(std::move(element));
}

void HtmlReader::openBlock(Element& element) {
    element.block = open_.size();
    if (isHtml(element.number(), kList)) openList(element);
    if (element.look().display == HtmlDisplay::Row) return text_.startRow();
    if (element.look().display == HtmlDisplay::Cell) return text_.startCell();
    text_.endParagraph();
    if (element.look().display == HtmlDisplay::ListItem) openItem(element);
}

void HtmlReader::openList(Element& element) {
    if (element.item != nullptr && !element.item->isMarked) {
        text_.addEmptyParagraph(place());
    }
    HtmlList list{.isNumbered = element.number() == htmlElement(u"ol")};
    if (element.list != kNoList) {
        const HtmlList& around = lists_[element.list];
        list.around = around.around.with({around.isNumbered ? u"{decimal}" : u"{disc}"});
        list.depth = around.depth + 1;
    }
    if (const String* start = element.tag().find(u"start")) list.number = integerValue(*start) - 1;
    element.list = lists_.size();
    element.item = nullptr;
    lists_.push_back(std::move(list));
}

void HtmlReader::openItem(Element& element) {
    constexpr std::int64_t kGreatestNumber = 999999999;
    if (element.list == kNoList) openList(element);
    HtmlList& list = lists_[element.list];
    const auto hasStyle = [&](StringView style) {
        const auto& words = element.look().listStyle;
        return words != nullptr && std::ranges::count(cssParts(*words), style) > 0;
    };
    element.item = nullptr;
    if (hasStyle(u"none")) return;
    const String* value = element.tag().find(u"value");
    list.number = value == nullptr ? list.number + 1 : integerValue(*value);
    list.number = std::clamp<std::int64_t>(list.number, 0, kGreatestNumber);
    list.greatest = std::max(list.greatest, list.number);
    ++list.items;
    const bool isOpenBullet = hasStyle(u"circle") || (list.depth % 2 == 0 && !hasStyle(u"disc"));
    String marker = list.isNumbered ? integerString(list.number) + u"."
                                    : String(1, isOpenBullet ? u'\u25E6' : u'\u25CF');
    items_.push_back({element.list, std::move(marker), looks_.attributesOf(*element.styled)});
    element.item = &items_.back();
}

void HtmlReader::closeInnermost() {
    Element& element = open_.back();
    const bool isBlock = element.block + 1 == open_.size() && !element.look().isHidden;
    if (isBlock && element.look().display == HtmlDisplay::Row) {
        text_.endRow();
    } else if (isBlock && element.look().display != HtmlDisplay::Cell) {
        const bool isUnmarked = element.item != nullptr && !element.item->isMarked &&
                                element.look().display == HtmlDisplay::ListItem;
        if (isUnmarked || (!element.isShown && element.look().minHeight > 0)) {
            text_.addEmptyParagraph(place());
            element.isShown = true;
        }
        text_.endParagraph();
    }
    if (isBlock && isHtml(element.number(), kList) && element.look().spaceAfter > 0 &&
        element.isShown) {
        text_.addSpaceAfter(element.look().spaceAfter);
    }
    const bool isShown = element.isShown;
    open_.pop_back();
    nesting_.closeInnermost();
    if (!open_.empty() && isShown) open_.back().isShown = true;
}

/// Closes all but the outermost elements. Formatting that was left open in the
/// one that ends goes on behind it, but not more often than shows.
void HtmlReader::closeTo(std::size_t size, bool dropsFormatting) {
    constexpr std::size_t kMostReopened = 16;
    constexpr std::ptrdiff_t kMostAlike = 3;
    std::vector<std::shared_ptr<const HtmlTag>> reopened;
    while (open_.size() > size) {
        const auto& tag = open_.back().styled->tag;
        const bool isLast = open_.size() == size + 1;
        const bool goesOn = !dropsFormatting && !isLast && reopened.size() < kMostReopened &&
                            isHtml(tag->element, kFormatting) &&
                            std::ranges::count(reopened, tag) < kMostAlike;
        if (goesOn) reopened.push_back(tag);
        closeInnermost();
    }
    for (; !reopened.empty(); reopened.pop_back()) open(reopened.back());
}

}  // namespace QZCore
