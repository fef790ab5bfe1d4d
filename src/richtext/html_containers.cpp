#include "richtext/html_containers.h"

#include "richtext/html_markup.h"

namespace QZCore {
namespace {

String nameOfList(const TextListItem& item) { return item.isNumbered() ? u"ol" : u"ul"; }

String numberAttribute(StringView name, std::uint32_t number) {
    return markupAttribute(name, unsignedString(number));
}

}  // namespace

void HtmlContainers::startList(const TextListItem& item) {
    // The direction of its text decides on which side the markers stand.
    page_ += u"<" + nameOfList(item) + u" dir=\"auto\"";
    if (item.isNumbered() && item.number != 1) page_ += numberAttribute(u"start", item.number);
    // A page says the bullet of all lists; else it would depend on their depth.
    const bool isUsual = lists_.empty() || form_ == HtmlForm::Page || item.isNumbered();
    if (item.bullet == kOpenBullet) {
        page_ += u" style=\"list-style-type:circle;\"";
    } else if (!isUsual) {
        page_ += u" style=\"list-style-type:disc;\"";
    }
    page_ += u">\n<li>";
    lists_.push_back(item);
}

void HtmlContainers::startItem(const TextListItem& item) {
    TextListItem& last = lists_.back();
    page_ += u"</li>\n<li";
    if (item.isNumbered() && item.number != last.number + 1) {
        page_ += numberAttribute(u"value", item.number);
    }
    page_ += u">";
    last = item;
}

void HtmlContainers::enterItem(const TextListItem& item) {
    while (!lists_.empty() && lists_.back().depth > item.depth) leaveList();
    if (lists_.empty() || lists_.back().depth < item.depth) return startList(item);
    if (lists_.back().bullet == item.bullet) return startItem(item);
    leaveList();
    startList(item);
}

void HtmlContainers::enter(const Block& block) {
    const bool staysInLists = block.isInList || lists_.empty();
    if (!block.isQuoted) leaveQuotation();
    if (!staysInLists) leaveAll();
    if (block.kind == BlockKind::Item) enterItem(block.item);
    if (block.isQuoted && !inQuotation_) enterQuotation();
}

void HtmlContainers::leaveList() {
    page_ += u"</li>\n</" + nameOfList(lists_.back()) + u">";
    lists_.pop_back();
    if (lists_.empty()) page_ += u"\n";
}

void HtmlContainers::enterQuotation() {
    page_ += u"<blockquote dir=\"auto\"";
    if (form_ == HtmlForm::Fragment) page_ += u" style=\"margin:0;\"";
    page_ += u">\n";
    inQuotation_ = true;
}

void HtmlContainers::leaveQuotation() {
    if (!inQuotation_) return;
    // Nothing but text may end a line within an item.
    page_ += lists_.empty() ? u"</blockquote>\n" : u"</blockquote>";
    inQuotation_ = false;
}

void HtmlContainers::leaveAll() {
    leaveQuotation();
    while (!lists_.empty()) leaveList();
}

}  // namespace QZCore
