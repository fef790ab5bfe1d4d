#include "richtext/rtf_list_item.h"

#include <algorithm>
#include <array>
#include <utility>

namespace QZCore {
namespace {

struct FormatRow {
    StringView format;
    RtfNumbering numbering;
};

constexpr std::array kFormats{
    FormatRow{kDecimalFormat, RtfNumbering::Decimal},
    FormatRow{u"{upper-roman}", RtfNumbering::UpperRoman},
    FormatRow{u"{lower-roman}", RtfNumbering::LowerRoman},
    FormatRow{u"{upper-alpha}", RtfNumbering::UpperLetter},
    FormatRow{u"{lower-alpha}", RtfNumbering::LowerLetter},
    FormatRow{kDiscFormat, RtfNumbering::Bullet},
};

/// What stands between two tabs at the start of `paragraph`.
StringView markerOf(StringView paragraph) {
    constexpr std::size_t kLongest = 12;
    if (!paragraph.starts_with(u'\t')) return {};
    const std::size_t tab = paragraph.substr(0, kLongest + 2).find(u'\t', 1);
    return tab == StringView::npos ? StringView() : paragraph.substr(1, tab - 1);
}

/// The formats of the lists of `style`, as far as RTF has levels.
std::vector<String> formatsOf(const ParagraphStyle& style) {
    std::vector<String> formats;
    if (style.textLists.size() > kDeepestRtfLevel) return formats;
    for (TextList& list : style.textLists.lists()) formats.push_back(std::move(list.markerFormat));
    return formats;
}

}  // namespace

RtfNumbering rtfNumberingOf(StringView markerFormat) {
    const auto* row = std::ranges::find(kFormats, markerFormat, &FormatRow::format);
    return row == kFormats.end() ? RtfNumbering::Bullet : row->numbering;
}

StringView markerFormatOf(std::int32_t numbering) {
    const auto* row =
        std::ranges::find(kFormats, static_cast<RtfNumbering>(numbering), &FormatRow::numbering);
    return row == kFormats.end() ? kDecimalFormat : row->format;
}

std::optional<RtfListItem> rtfListItemIn(StringView paragraph, const ParagraphStyle& style) {
    const StringView marker = markerOf(paragraph);
    if (marker.empty()) return std::nullopt;
    const bool isRendered = listItemIn(paragraph, style).has_value();
    if (!isRendered && style.textLists.empty()) return std::nullopt;
    RtfListItem item;
    const std::size_t depth = style.textLists.size() + (isRendered ? 1 : 0);
    item.level = std::min(depth - 1, kDeepestRtfLevel);
    item.formats = formatsOf(style);
    const bool isNumbered = marker.front() >= u'0' && marker.front() <= u'9';
    item.ownFormat = isNumbered ? kDecimalFormat : kDiscFormat;
    if (isRendered && depth - 1 == item.formats.size()) {
        item.formats.push_back(item.ownFormat);
    } else if (!item.formats.empty()) {
        item.ownFormat = item.formats.back();
    }
    item.marker = marker;
    item.markerLength = marker.size() + 2;
    const bool hasStop = !style.tabStops.empty();
    item.markerStop = hasStop ? style.tabStops[0].location : style.firstLineHeadIndent;
    item.isMarkerSetRight = hasStop && style.tabStops[0].alignment == TextAlignment::Right;
    return item;
}

void styleAsListItem(ParagraphStyle& style) {
    constexpr double kGap = 5;
    constexpr double kLeastIndent = 18;
    if (!(style.headIndent > 0)) style.headIndent = kLeastIndent;
    double stop = style.firstLineHeadIndent;
    if (!(stop > 0 && stop <= style.headIndent)) stop = std::max(style.headIndent - kGap, 0.0);
    style.firstLineHeadIndent = 0;
    style.tabStops = {{TextAlignment::Right, stop}, {TextAlignment::Natural, style.headIndent}};
}

}  // namespace QZCore
