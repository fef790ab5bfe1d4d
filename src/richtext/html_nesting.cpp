#include "richtext/html_nesting.h"

#include <algorithm>

namespace QZCore {
namespace {

bool isOneOf(StringView element, std::initializer_list<StringView> elements) {
    return std::ranges::find(elements, element) != elements.end();
}

bool isHeading(StringView element) {
    return element.size() == 2 && element[0] == u'h' && element[1] >= u'1' && element[1] <= u'6';
}

bool isList(StringView element) { return isOneOf(element, {u"ul", u"ol", u"menu", u"dir"}); }

bool isCell(StringView element) { return isOneOf(element, {u"td", u"th", u"caption"}); }

bool isTablePart(StringView element) {
    return isCell(element) || isOneOf(element, {u"tr", u"tbody", u"thead", u"tfoot"});
}

/// Whether no paragraph goes on around the element.
bool endsParagraph(StringView element) {
    return isHeading(element) || isList(element) ||
           isOneOf(element,
                   {u"address",    u"article", u"aside",   u"blockquote", u"center",  u"details",
                    u"dialog",     u"div",     u"dl",      u"dd",         u"dt",      u"fieldset",
                    u"figcaption", u"figure",  u"footer",  u"form",       u"header",  u"hgroup",
                    u"hr",         u"li",      u"listing", u"main",       u"nav",     u"p",
                    u"plaintext",  u"pre",     u"search",  u"section",    u"summary", u"table",
                    u"xmp"});
}

}  // namespace

bool HtmlNesting::isFormatting(StringView element) {
    return isOneOf(element,
                   {u"a", u"b", u"big", u"code", u"del", u"em", u"font", u"i", u"ins", u"mark",
                    u"nobr", u"s", u"small", u"strike", u"strong", u"sub", u"sup", u"tt", u"u"});
}

bool HtmlNesting::isVoid(StringView element) {
    return isOneOf(element, {u"area", u"base", u"basefont", u"bgsound", u"br", u"col", u"embed",
                             u"frame", u"hr", u"img", u"input", u"keygen", u"link", u"meta",
                             u"param", u"source", u"track", u"wbr"});
}

bool HtmlNesting::endsFormatting(StringView element) {
    return isTablePart(element) || element == u"table";
}

std::size_t HtmlNesting::innermost(std::initializer_list<StringView> elements) const {
    std::size_t place = 0;
    for (const StringView element : elements) {
        const auto at = places_.find(String(element));
        if (at == places_.end() || at->second.empty()) continue;
        place = std::max(place, at->second.back());
    }
    return place;
}

std::size_t HtmlNesting::innermostCell() const {
    return innermost({u"td", u"th", u"caption", u"table", u"button", u"object"});
}

std::size_t HtmlNesting::leftByStartOf(StringView element) const {
    std::size_t left = size();
    // An element at a place that is not outside of another ends there.
    const auto end = [&](std::initializer_list<StringView> ended, std::size_t within) {
        for (const StringView name : ended) {
            const std::size_t place = innermost({name});
            if (place > within) left = std::min(left, place - 1);
        }
    };
    const std::size_t table = innermost({u"table"});
    if (element == u"li") {
        end({u"li"}, std::max(innermost({u"ul", u"ol", u"menu", u"dir"}), innermostCell()));
    } else if (element == u"dt" || element == u"dd") {
        end({u"dt", u"dd"}, std::max(innermost({u"dl"}), innermostCell()));
    } else if (isCell(element)) {
        end({u"td", u"th", u"caption"}, std::max(innermost({u"tr"}), table));
    } else if (element == u"tr") {
        end({u"tr", u"caption"}, table);
    } else if (isTablePart(element)) {
        end({u"tr", u"caption", u"tbody", u"thead", u"tfoot"}, table);
    } else if (element == u"a" || element == u"option" || element == u"nobr") {
        end({element}, innermostCell());
    }
    if (endsParagraph(element)) end({u"p"}, innermostCell());
    return left;
}

std::size_t HtmlNesting::leftByEndOf(StringView element) const {
    const std::size_t place = innermost({element});
    std::size_t within = innermostCell();
    if (element == u"table") {
        within = 0;
    } else if (isTablePart(element)) {
        within = innermost({u"table"});
    } else if (element == u"li") {
        within = std::max(within, innermost({u"ul", u"ol", u"menu", u"dir"}));
    } else if (element == u"button" || element == u"object") {
        within = innermost({u"td", u"th", u"caption", u"table"});
    }
    return place > within ? place - 1 : size();
}

void HtmlNesting::open(StringView element) {
    Places& places = places_[String(element)];
    open_.push_back(&places);
    places.push_back(open_.size());
}

void HtmlNesting::closeInnermost() {
    open_.back()->pop_back();
    open_.pop_back();
}

}  // namespace QZCore
