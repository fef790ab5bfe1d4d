#include "markdown/list_look.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace QZCore {
namespace {

constexpr StringView kListStyleName = u"-";

/// The length stored under `key`. As in a style, what is no length counts as
/// absent.
double lengthForKey(const Preferences& preferences, StringView key, double otherwise) {
    const double length = preferences.doubleForKey(key, otherwise);
    return std::isfinite(length) ? length : otherwise;
}

/// The paragraph style that all items start from.
ParagraphStyle baseStyle(const StyleSheet& styles, const Preferences& preferences,
                         const TextAttributes& prefix, const Font& font) {
    const Dictionary defaults{
        {kStyleLineSpacing, preferences.doubleForKey(u"Markdown Inline Lists Line Spacing", 0)},
        {kStyleParagraphSpacingAfter,
         preferences.doubleForKey(u"Markdown Inline Lists Paragraph Spacing After", 0)},
    };
    const Value* style = styles.find(kListStyleName);
    const TextAttributes resolved = fontAttributesWithDefaultStyle(
        &defaults, style == nullptr ? nullptr : style->dictionary(), font);
    ParagraphStyle base;
    const bool startsWithPrefix =
        preferences.boolForKey(u"Markdown Lists Start With Common Attributes", true);
    if (startsWithPrefix && prefix.paragraphStyle() != nullptr) base = *prefix.paragraphStyle();
    const ParagraphStyle& spacing = *resolved.paragraphStyle();
    base.firstLineHeadIndent = 0;
    base.lineSpacing = spacing.lineSpacing;
    base.paragraphSpacingBefore = spacing.paragraphSpacingBefore;
    base.paragraphSpacing = spacing.paragraphSpacing;
    return base;
}

}  // namespace

ListLook::ListLook(const StyleSheet& styles, const Preferences& preferences,
                   const TextAttributes& prefix, bool indentsFirstLevel)
    : fonts_(FontManager::shared()),
      font_(prefix.font() == nullptr ? fonts_.userFont(kFontDefaultSize) : *prefix.font()),
      base_(baseStyle(styles, preferences, prefix, font_)),
      alternatesDiscs_(preferences.boolForKey(u"Markdown Inline Lists Alternate Discs", true)),
      indents_{indentsFirstLevel ? 0.0 : 1.0,
               lengthForKey(preferences, u"Markdown Inline Lists Indentions", 9),
               lengthForKey(preferences, u"Markdown Inline Lists Marker To Text Gap", 5)} {}

String ListLook::markerOf(const ListItem& item) const {
    if (item.isNumbered()) return integerString(static_cast<std::int64_t>(item.position)) + u".";
    const bool isEvenLevel = item.level % 2 == 0;
    return alternatesDiscs_ && isEvenLevel ? u"\u25E6" : u"\u25CF";
}

double ListLook::markerWidthOf(const ListItem& item) const {
    const String sample = item.isNumbered() ? widestItemNumber(item.siblings) : markerOf(item);
    return std::ceil(fonts_.widthOfText(sample, font_));
}

ParagraphStyle ListLook::styleOf(const ListItem& item, TextLists textLists) const {
    ParagraphStyle style = base_;
    style.textLists = std::move(textLists);
    indents_.apply(style, item.level, markerWidthOf(item));
    return style;
}

}  // namespace QZCore
