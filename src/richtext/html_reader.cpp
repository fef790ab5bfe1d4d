#include "richtext/html_reader.h"

#include <algorithm>
#include <utility>

#include "richtext/html_hints.h"

namespace QZCore {
namespace {

constexpr StringView kBlanks = u" \t\n\f";

bool isOneOf(StringView name, std::initializer_list<StringView> names) {
    return std::ranges::find(names, name) != names.end();
}

bool isList(StringView name) { return isOneOf(name, {u"ul", u"ol", u"menu", u"dir"}); }

/// Whether a background behind the element is that of its text.
bool isTextBlock(StringView name) {
    return isOneOf(name, {u"p", u"pre", u"h1", u"h2", u"h3", u"h4", u"h5", u"h6", u"li", u"dt",
                          u"dd", u"address", u"summary", u"figcaption"});
}

bool showsNothing(const String& text) { return text.find_first_not_of(kBlanks) == text.npos; }

/// Whether the elements of a document's head may still follow the tag.
bool belongsToHead(StringView name) {
    return isOneOf(
        name, {u"base", u"link", u"meta", u"title", u"style", u"script", u"noscript", u"template"});
}

/// What HTML's elements mean, read once.
struct DefaultStyles {
    DefaultStyles() { rules.add(htmlDefaultStyles()); }

    CssNames names;
    CssRules rules{names};
};

const DefaultStyles& defaultStyles() {
    static const DefaultStyles& styles = *new DefaultStyles;
    return styles;
}

}  // namespace

HtmlReader::HtmlReader() : names_(defaultStyles().names) {}

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
    if (std::exchange(isInStyle_, false)) return rules_.add(text);
    if (open_.empty()) {
        if (showsNothing(text)) return;
        openRoot();
    }
    Element& element = open_.back();
    StringView shown = text;
    if (std::exchange(isAtPreStart_, false) && shown.starts_with(u'\n')) shown.remove_prefix(1);
    if (element.look.isHidden) return;
    text_.addText(shown, element.look.space, place(), attributesOf(element));
    element.isShown = true;
}

HtmlPlace HtmlReader::place() {
    const Element& element = open_.back();
    Element& block = open_[element.block];
    return {block.look, attributesOf(block), element.item};
}

const TextAttributes& HtmlReader::attributesOf(Element& element) {
    if (!element.attributes) element.attributes = attributes_.attributesOf(element.look);
    return *element.attributes;
}

// ---- Tags -------------------------------------------------------------------

/// The outermost elements are there without tags; tags add what they say.
void HtmlReader::keepForRoot(HtmlToken& tag) {
    if (!open_.empty() || tag.text == u"head") return;
    root_[tag.text == u"html" ? 0 : 1].attributes = std::move(tag.attributes);
}

void HtmlReader::openRoot() {
    for (HtmlToken& tag : root_) open(std::move(tag));
}

void HtmlReader::takeStart(HtmlToken& token) {
    isAtPreStart_ = false;
    if (isOneOf(token.text, {u"html", u"head", u"body"})) return keepForRoot(token);
    isInStyle_ = token.text == u"style";
    // Their contents, if any, are the next text, and show nothing.
    if (open_.empty() && belongsToHead(token.text)) {
        const bool isOpened = isOneOf(token.text, {u"title", u"script", u"template"});
        if (isOpened) open(std::move(token));
        return;
    }
    if (open_.empty()) openRoot();
    const std::size_t left = nesting_.leftByStartOf(token.text);
    if (left < open_.size()) closeTo(left, HtmlNesting::endsFormatting(token.text));
    if (HtmlNesting::isVoid(token.text)) return takeVoid(token);
    isAtPreStart_ = isOneOf(token.text, {u"pre", u"listing", u"textarea"});
    open(std::move(token));
}

void HtmlReader::takeEnd(const HtmlToken& token) {
    isAtPreStart_ = isInStyle_ = false;
    if (isOneOf(token.text, {u"html", u"head", u"body"})) return;
    if (token.text == u"br") {
        HtmlToken start{HtmlTokenKind::StartTag, token.text};
        return takeStart(start);
    }
    const std::size_t left = nesting_.leftByEndOf(token.text);
    if (left < open_.size()) closeTo(left, HtmlNesting::endsFormatting(token.text));
}

void HtmlReader::takeVoid(const HtmlToken& tag) {
    constexpr StringView kRule = u"\u2014\u2014\u2014";
    keys_.push_back(keysOf(tag));
    const HtmlLook look = lookOf(tag);
    keys_.pop_back();
    if (look.isHidden) return;
    Element& around = open_.back();
    if (tag.text == u"br") {
        text_.breakLine(place());
    } else if (tag.text == u"hr") {
        text_.endParagraph();
        text_.addText(kRule, HtmlSpace::Keep, place(), attributesOf(around));
        text_.endParagraph();
    } else if (tag.text == u"img") {
        const TextAttachment image = images_.imageOf(tag, look);
        const bool isNothing = image.image == nullptr && image.alternativeText.empty();
        if (isNothing && image.source.empty()) return;
        text_.addAttachment(place(), attributesOf(around).withAttribute(NSAttachmentAttributeName,
                                                                        Value::boxed(image)));
    } else {
        return;
    }
    around.isShown = true;
}

// ---- Elements ---------------------------------------------------------------

CssKeys HtmlReader::keysOf(const HtmlToken& tag) {
    constexpr std::size_t kMostClasses = 32;
    CssKeys keys{names_.numberOf(u"*"), names_.numberOf(tag.text)};
    if (const String* name = tag.find(u"id")) keys.push_back(names_.numberOf(u"#" + *name));
    if (const String* classes = tag.find(u"class")) {
        for (const StringView name : cssParts(*classes)) {
            const std::uint32_t key = names_.numberOf(u"." + String(name));
            const bool isNew = std::ranges::find(keys, key) == keys.end();
            if (isNew && keys.size() < kMostClasses) keys.push_back(key);
        }
    }
    return keys;
}

/// The look of an element whose keys are the last ones. What its meaning says
/// counts least, its own style most.
HtmlLook HtmlReader::lookOf(const HtmlToken& tag) {
    std::vector<const CssDeclaration*> declarations;
    const auto add = [&](const CssDeclarations& list) {
        for (const CssDeclaration& declaration : list) declarations.push_back(&declaration);
    };
    for (const CssDeclarations* list : defaultStyles().rules.declarationsFor(keys_)) add(*list);
    const CssDeclarations hints = htmlHintsOf(tag);
    add(hints);
    for (const CssDeclarations* list : rules_.declarationsFor(keys_)) add(*list);
    const String* style = tag.find(u"style");
    const CssDeclarations own = style == nullptr ? CssDeclarations() : cssDeclarationsOf(*style);
    add(own);
    const bool isPage = isOneOf(tag.text, {u"html", u"body"});
    const HtmlBox box = isPage ? HtmlBox::Page : isList(tag.text) ? HtmlBox::List : HtmlBox::Block;
    HtmlLook look =
        htmlLook(open_.empty() ? HtmlLook() : open_.back().look, declarations,
                 {.rootFontSize = open_.empty() ? kFontDefaultSize : open_.front().look.fontSize,
                  .box = box,
                  .isTextBlock = isTextBlock(tag.text)});
    const String* target = tag.text == u"a" ? tag.find(u"href") : nullptr;
    if (target != nullptr) {
        look.link = std::make_shared<const String>(trimmedOfWhitespaceAndNewlines(*target));
    }
    return look;
}

void HtmlReader::open(HtmlToken tag) {
    keys_.push_back(keysOf(tag));
    Element element;
    element.look = lookOf(tag);
    element.tag = std::move(tag);
    if (!open_.empty()) {
        const Element& around = open_.back();
        element.block = around.block;
        element.list = around.list;
        element.item = around.item;
    }
    if (element.look.display != HtmlDisplay::Inline && !element.look.isHidden) {
        openBlock(element);
    }
    nesting_.open(element.tag.text);
    open_.push_back(std::move(element));
}

void HtmlReader::openBlock(Element& element) {
    element.block = open_.size();
    if (isList(element.tag.text)) openList(element);
    if (element.look.display == HtmlDisplay::Row) return text_.startRow();
    if (element.look.display == HtmlDisplay::Cell) return text_.startCell();
    text_.endParagraph();
    if (element.look.display == HtmlDisplay::ListItem) openItem(element);
}

void HtmlReader::openList(Element& element) {
    if (element.item != nullptr && !element.item->isMarked) {
        text_.addEmptyParagraph(place());
    }
    HtmlList list{.isNumbered = element.tag.text == u"ol"};
    if (element.list != kNoList) {
        const HtmlList& around = lists_[element.list];
        list.around = around.around.with({around.isNumbered ? u"{decimal}" : u"{disc}"});
        list.depth = around.depth + 1;
    }
    if (const String* start = element.tag.find(u"start")) list.number = integerValue(*start) - 1;
    element.list = lists_.size();
    element.item = nullptr;
    lists_.push_back(std::move(list));
}

void HtmlReader::openItem(Element& element) {
    constexpr std::int64_t kGreatestNumber = 999999999;
    if (element.list == kNoList) openList(element);
    HtmlList& list = lists_[element.list];
    const auto hasStyle = [&](StringView style) {
        const auto& words = element.look.listStyle;
        return words != nullptr && std::ranges::count(cssParts(*words), style) > 0;
    };
    element.item = nullptr;
    if (hasStyle(u"none")) return;
    const String* value = element.tag.find(u"value");
    list.number = value == nullptr ? list.number + 1 : integerValue(*value);
    list.number = std::clamp<std::int64_t>(list.number, 0, kGreatestNumber);
    list.greatest = std::max(list.greatest, list.number);
    ++list.items;
    const bool isOpenBullet = hasStyle(u"circle") || (list.depth % 2 == 0 && !hasStyle(u"disc"));
    String marker = list.isNumbered ? integerString(list.number) + u"."
                                    : String(1, isOpenBullet ? u'\u25E6' : u'\u25CF');
    items_.push_back({element.list, std::move(marker), attributes_.attributesOf(element.look)});
    element.item = &items_.back();
}

void HtmlReader::closeInnermost() {
    Element& element = open_.back();
    const bool isBlock = element.block + 1 == open_.size() && !element.look.isHidden;
    if (isBlock && element.look.display == HtmlDisplay::Row) {
        text_.endRow();
    } else if (isBlock && element.look.display != HtmlDisplay::Cell) {
        const bool isUnmarked = element.item != nullptr && !element.item->isMarked &&
                                element.look.display == HtmlDisplay::ListItem;
        if (isUnmarked || (!element.isShown && element.look.minHeight > 0)) {
            text_.addEmptyParagraph(place());
            element.isShown = true;
        }
        text_.endParagraph();
    }
    if (isBlock && isList(element.tag.text) && element.look.spaceAfter > 0 && element.isShown) {
        text_.addSpaceAfter(element.look.spaceAfter);
    }
    const bool isShown = element.isShown;
    open_.pop_back();
    keys_.pop_back();
    nesting_.closeInnermost();
    if (!open_.empty() && isShown) open_.back().isShown = true;
}

/// Closes all but the outermost elements. Formatting that was left open in the
/// one that ends goes on behind it.
void HtmlReader::closeTo(std::size_t size, bool dropsFormatting) {
    constexpr std::size_t kMostReopened = 16;
    std::vector<HtmlToken> reopened;
    while (open_.size() > size) {
        const bool isLast = open_.size() == size + 1;
        const bool goesOn = !dropsFormatting && !isLast && reopened.size() < kMostReopened &&
                            HtmlNesting::isFormatting(open_.back().tag.text);
        if (goesOn) reopened.push_back(open_.back().tag);
        closeInnermost();
    }
    for (; !reopened.empty(); reopened.pop_back()) open(std::move(reopened.back()));
}

}  // namespace QZCore
