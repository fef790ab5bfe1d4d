#include "markdown/list_title.h"

namespace QZCore {
namespace {

bool containsText(StringView text) { return !trimmedOfWhitespaceAndNewlines(text).empty(); }

}  // namespace

bool isListTitle(StringView textBefore) {
    if (textBefore.empty()) return false;
    textBefore.remove_suffix(1);  // the line feed before the list
    const std::size_t feed = textBefore.find(u'\n');
    if (feed == StringView::npos || textBefore.find(u'\n', feed + 1) != StringView::npos) {
        return false;
    }
    return containsText(textBefore.substr(0, feed)) && !containsText(textBefore.substr(feed + 1));
}

}  // namespace QZCore
