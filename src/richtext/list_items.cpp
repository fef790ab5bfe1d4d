#include "QZCore/richtext/list_items.h"

#include <algorithm>

namespace QZCore {
namespace {

constexpr std::size_t kMostDigits = 9;
constexpr std::size_t kLongestStart = kMostDigits + 3;  // two tabs and a full stop

/// Whether markers end and texts start at stops of their own.
bool hasStopsOfItems(const ParagraphStyle& style) {
    return style.tabStops.size() == 2 && style.tabStops[0].alignment == TextAlignment::Right &&
           style.tabStops[1] == TextTab{TextAlignment::Natural, style.headIndent};
}

/// The item with the marker.
std::optional<TextListItem> itemOfMarker(StringView marker) {
    if (marker == StringView(&kFilledBullet, 1) || marker == StringView(&kOpenBullet, 1)) {
        return TextListItem{.bullet = marker.front()};
    }
    const StringView digits = marker.substr(0, marker.find_first_not_of(u"0123456789"));
    if (digits.empty() || digits.size() > kMostDigits || marker.substr(digits.size()) != u".") {
        return std::nullopt;
    }
    return TextListItem{.bullet = u'\0',
                        .number = static_cast<std::uint32_t>(integerValue(digits))};
}

}  // namespace

String TextListItem::marker() const {
    return isNumbered() ? unsignedString(number) + u"." : String(1, bullet);
}

double itemIndentOf(const ParagraphStyle& style) {
    const bool isInList =
        style.tabStops.size() == 2 && style.tabStops[0].alignment == TextAlignment::Right;
    return isInList ? style.tabStops[1].location : 0;
}

std::optional<FoundTextListItem> listItemIn(StringView paragraph, const ParagraphStyle& style) {
    if (!paragraph.starts_with(u'\t') || !hasStopsOfItems(style)) return std::nullopt;
    const std::size_t tab = paragraph.substr(0, kLongestStart).find(u'\t', 1);
    if (tab == StringView::npos) return std::nullopt;
    auto item = itemOfMarker(paragraph.substr(1, tab - 1));
    if (!item) return std::nullopt;
    item->depth = style.textLists.size() + 1;
    return FoundTextListItem{*item, {tab + 1, paragraph.size() - tab - 1}};
}

}  // namespace QZCore
