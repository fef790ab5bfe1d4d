#include "richtext/html_nesting.h"

#include <algorithm>

namespace QZCore {

std::uint32_t HtmlNesting::numberOf(StringView name) {
    if (const auto known = findHtmlElement(name)) return *known;
    const auto next = static_cast<std::uint32_t>(places_.size());
    const auto [number, isNew] = others_.try_emplace(String(name), next);
    if (isNew) places_.emplace_back();
    return number->second;
}

std::size_t HtmlNesting::innermost(Numbers elements) const {
    std::size_t place = 0;
    for (const std::uint32_t element : elements) {
        if (!places_[element].empty()) place = std::max(place, places_[element].back());
    }
    return place;
}

std::size_t HtmlNesting::innermostList() const {
    return innermost(
        {htmlElement(u"ul"), htmlElement(u"ol"), htmlElement(u"menu"), htmlElement(u"dir")});
}

std::size_t HtmlNesting::innermostBarrier() const {
    return innermost({htmlElement(u"td"), htmlElement(u"th"), htmlElement(u"caption"),
                      htmlElement(u"table"), htmlElement(u"button"), htmlElement(u"object")});
}

std::size_t HtmlNesting::innermostHeading() const {
    return innermost({htmlElement(u"h1"), htmlElement(u"h2"), htmlElement(u"h3"),
                      htmlElement(u"h4"), htmlElement(u"h5"), htmlElement(u"h6")});
}

std::size_t HtmlNesting::leftByStartOf(std::uint32_t element) const {
    constexpr std::uint32_t kTr = htmlElement(u"tr");
    constexpr std::uint32_t kCaption = htmlElement(u"caption");
    std::size_t left = size();
    // An element at a place that is not outside of another ends there.
    const auto end = [&](Numbers ended, std::size_t within) {
        for (const std::uint32_t number : ended) {
            const std::size_t place = innermost({number});
            if (place > within) left = std::min(left, place - 1);
        }
    };
    const std::size_t table = innermost({htmlElement(u"table")});
    if (element == htmlElement(u"li")) {
        end({element}, std::max(innermostList(), innermostBarrier()));
    } else if (element == htmlElement(u"dt") || element == htmlElement(u"dd")) {
        end({htmlElement(u"dt"), htmlElement(u"dd")},
            std::max(innermost({htmlElement(u"dl")}), innermostBarrier()));
    } else if (isHtml(element, kCell)) {
        end({htmlElement(u"td"), htmlElement(u"th"), kCaption}, std::max(innermost({kTr}), table));
    } else if (element == kTr) {
        end({kTr, kCaption}, table);
    } else if (isHtml(element, kTablePart)) {
        end({kTr, kCaption, htmlElement(u"tbody"), htmlElement(u"thead"), htmlElement(u"tfoot")},
            table);
    } else if (element == htmlElement(u"a") || element == htmlElement(u"option") ||
               element == htmlElement(u"nobr")) {
        end({element}, innermostBarrier());
    }
    if (isHtml(element, kBlock)) end({htmlElement(u"p")}, innermostBarrier());
    // No heading stands directly in another.
    const bool isInHeading = left > 0 && isHtml(open_[left - 1], kHeading);
    if (isInHeading && isHtml(element, kHeading)) --left;
    return left;
}

std::size_t HtmlNesting::leftByEndOf(std::uint32_t element) const {
    // The end of any heading ends the one that is open.
    const std::size_t place = isHtml(element, kHeading) ? innermostHeading() : innermost({element});
    std::size_t within = 0;
    if (isHtml(element, kTablePart)) {
        within = innermost({htmlElement(u"table")});
    } else if (element == htmlElement(u"li")) {
        within = std::max(innermostList(), innermostBarrier());
    } else if (element == htmlElement(u"button") || element == htmlElement(u"object")) {
        within = innermost({htmlElement(u"td"), htmlElement(u"th"), htmlElement(u"caption"),
                            htmlElement(u"table")});
    } else if (element != htmlElement(u"table")) {
        within = innermostBarrier();
    }
    return place > within ? place - 1 : size();
}

void HtmlNesting::open(std::uint32_t element) {
    open_.push_back(element);
    places_[element].push_back(open_.size());
}

void HtmlNesting::closeInnermost() {
    places_[open_.back()].pop_back();
    open_.pop_back();
}

}  // namespace QZCore
