#include "QZCore/richtext/list_items.h"

#include <algorithm>

namespace QZCore {
namespace {

constexpr std::size_t kMostDigits = 9;

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

std::optional<FoundTextListItem> listItemAt(const RichText& text, Range paragraph) {
    constexpr std::size_t kLongestStart = kMostDigits + 3;  // two tabs and a full stop
    if (text.characterAtIndex(paragraph.location) != u'\t') return std::nullopt;
    const TextAttributes attributes = text.attributesAtIndex(paragraph.location);
    const ParagraphStyle* style = attributes.paragraphStyle();
    if (style == nullptr || !hasStopsOfItems(*style)) return std::nullopt;
    const String start =
        text.string({paragraph.location, std::min(paragraph.length, kLongestStart)});
    const std::size_t tab = start.find(u'\t', 1);
    if (tab == String::npos) return std::nullopt;
    auto item = itemOfMarker(StringView(start).substr(1, tab - 1));
    if (!item) return std::nullopt;
    item->depth = style->textLists.size() + 1;
    return FoundTextListItem{*item, {paragraph.location + tab + 1, paragraph.length - tab - 1}};
}

}  // namespace QZCore
