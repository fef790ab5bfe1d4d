#include "richtext/html_containers.h"

namespace QZCore {
namespace {

std::string nameOfList(const TextListItem& item) { return item.isNumbered() ? "ol" : "ul"; }

std::string numberAttribute(const char* name, std::uint32_t number) {
    return " " + std::string(name) + "=\"" + std::to_string(number) + "\"";
}

}  // namespace

void HtmlContainers::startList(const TextListItem& item) {
    // The direction of its text decides on which side the markers stand.
    page_ += "<" + nameOfList(item) + " dir=\"auto\"";
    if (item.isNumbered() && item.number != 1) page_ += numberAttribute("start", item.number);
    if (item.bullet == kOpenBullet) page_ += " style=\"list-style-type:circle;\"";
    page_ += ">\n<li>";
    lists_.push_back(item);
}

void HtmlContainers::startItem(const TextListItem& item) {
    TextListItem& last = lists_.back();
    page_ += "</li>\n<li";
    if (item.isNumbered() && item.number != last.number + 1) {
        page_ += numberAttribute("value", item.number);
    }
    page_ += ">";
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
    page_ += "</li>\n</" + nameOfList(lists_.back()) + ">";
    lists_.pop_back();
    if (lists_.empty()) page_ += "\n";
}

void HtmlContainers::enterQuotation() {
    page_ += "<blockquote dir=\"auto\"";
    if (form_ == HtmlForm::Fragment) page_ += " style=\"margin:0;\"";
    page_ += ">\n";
    inQuotation_ = true;
}

void HtmlContainers::leaveQuotation() {
    if (!inQuotation_) return;
    // Nothing but text may end a line within an item.
    page_ += lists_.empty() ? "</blockquote>\n" : "</blockquote>";
    inQuotation_ = false;
}

void HtmlContainers::leaveAll() {
    leaveQuotation();
    while (!lists_.empty()) leaveList();
}

}  // namespace QZCore
