#include "richtext/html_looks.h"

#include <algorithm>

#include "foundation/hash.h"
#include "model/release.h"
#include "richtext/html_elements.h"
#include "richtext/html_hints.h"

namespace QZCore {
namespace {

constexpr std::size_t kMostRemembered = 4096;

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

/// A text that is the same for tags that say the same.
void sign(const HtmlToken& token, String& signature) {
    signature = token.text;
    for (const HtmlAttribute& attribute : token.attributes) {
        signature += u'\0';
        signature += attribute.name;
        signature += u'\0';
        signature += attribute.value;
    }
}

HtmlBox boxOf(std::uint32_t element) {
    if (isHtml(element, kPage)) return HtmlBox::Page;
    return isHtml(element, kList) ? HtmlBox::List : HtmlBox::Block;
}

}  // namespace

/// Elements may stand deep in each other.
HtmlStyled::~HtmlStyled() {
    if (around != nullptr) Release<std::shared_ptr<const HtmlStyled>>::later(std::move(around));
}

std::size_t HtmlLooks::Hash::operator()(const Place& place) const {
    return hashCombine(reinterpret_cast<std::size_t>(place.first),
                       reinterpret_cast<std::size_t>(place.second));
}

HtmlLooks::HtmlLooks() : names_(defaultStyles().names) {}

void HtmlLooks::addSheet(StringView sheet) {
    rules_.add(sheet);
    styled_.clear();
}

std::shared_ptr<const HtmlTag> HtmlLooks::tagOf(HtmlToken token, std::uint32_t element) {
    sign(token, signature_);
    const auto known = tags_.find(signature_);
    if (known != tags_.end()) return known->second;
    if (tags_.size() >= kMostRemembered) tags_.clear();
    auto tag = std::make_shared<HtmlTag>();
    tag->element = element;
    tag->keys = keysOf(token);
    tag->hints = htmlHintsOf(token);
    if (const String* style = token.find(u"style")) tag->own = cssDeclarationsOf(*style);
    tag->token = std::move(token);
    return tags_[signature_] = std::move(tag);
}

std::shared_ptr<HtmlStyled> HtmlLooks::styled(const std::shared_ptr<const HtmlTag>& tag,
                                              const std::shared_ptr<const HtmlStyled>& around) {
    const Place place{around.get(), tag.get()};
    const auto known = styled_.find(place);
    if (known != styled_.end()) return known->second;
    if (styled_.size() >= kMostRemembered) styled_.clear();
    auto element = std::make_shared<HtmlStyled>();
    element->around = around;
    element->tag = tag;
    element->place = {&tag->keys, around == nullptr ? nullptr : &around->place};
    if (around != nullptr) element->rootFontSize = around->rootFontSize;
    element->look = lookOf(*element);
    if (around == nullptr) element->rootFontSize = element->look.fontSize;
    return styled_[place] = std::move(element);
}

const TextAttributes& HtmlLooks::attributesOf(HtmlStyled& element) {
    if (!element.attributes) element.attributes = attributes_.attributesOf(element.look);
    return *element.attributes;
}

CssKeys HtmlLooks::keysOf(const HtmlToken& token) {
    constexpr std::size_t kMostKeys = 32;
    CssKeys keys{names_.numberOf(u"*"), names_.numberOf(token.text)};
    if (token.text == u"html") keys.push_back(names_.numberOf(u":root"));
    if (token.text == u"a" && token.find(u"href") != nullptr) {
        keys.push_back(names_.numberOf(u":link"));
    }
    if (const String* name = token.find(u"id")) keys.push_back(names_.numberOf(u"#" + *name));
    const String* classes = token.find(u"class");
    if (classes == nullptr) return keys;
    for (const StringView name : cssParts(*classes)) {
        const std::uint32_t key = names_.numberOf(u"." + String(name));
        const bool isNew = std::ranges::find(keys, key) == keys.end();
        if (isNew && keys.size() < kMostKeys) keys.push_back(key);
    }
    return keys;
}

/// What the meaning of an element says counts least, its own style most.
HtmlLook HtmlLooks::lookOf(const HtmlStyled& element) const {
    const HtmlTag& tag = *element.tag;
    std::vector<const CssDeclaration*> declarations;
    const auto add = [&](const CssDeclarations& list) {
        for (const CssDeclaration& declaration : list) declarations.push_back(&declaration);
    };
    for (const CssDeclarations* list : defaultStyles().rules.declarationsFor(element.place)) {
        add(*list);
    }
    add(tag.hints);
    for (const CssDeclarations* list : rules_.declarationsFor(element.place)) add(*list);
    add(tag.own);
    HtmlLook look =
        htmlLook(element.around == nullptr ? HtmlLook() : element.around->look, declarations,
                 {.rootFontSize = element.rootFontSize,
                  .box = boxOf(tag.element),
                  .isTextBlock = isHtml(tag.element, kText)});
    const String* target = tag.token.text == u"a" ? tag.token.find(u"href") : nullptr;
    if (target != nullptr) {
        look.link = std::make_shared<const String>(trimmedOfWhitespaceAndNewlines(*target));
    }
    return look;
}

}  // namespace QZCore
