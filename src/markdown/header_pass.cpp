#include "QZCore/color.h"
#include "markdown/passes.h"

namespace QZCore {
namespace {

constexpr std::size_t kLevels = 6;

/// The size that the preferences name for `level`; the body's, without its
/// fraction, for a level beyond their list.
std::int32_t headerSize(const RenderingContext& context, std::size_t level) {
    const String sizes =
        context.preferences.stringForKey(u"Markdown Header Sizes", u"32, 24, 18, 16, 13, 11");
    StringView rest = sizes;
    for (std::size_t i = 1; i < level; ++i) {
        const std::size_t comma = rest.find(u',');
        if (comma == StringView::npos) return Value(context.baseFont.pointSize).intValue();
        rest.remove_prefix(comma + 1);
    }
    return intValue(rest);
}

Dictionary headerStyle(const RenderingContext& context, std::size_t level) {
    const Preferences& preferences = context.preferences;
    const auto number = [&](StringView key, double otherwise) {
        return preferences.doubleForKey(key, otherwise);
    };
    Dictionary style{
        {kStyleFontSize, headerSize(context, level)},
        {kStyleFontBold, preferences.boolForKey(u"Markdown Header Bold", true)},
        {kStyleLineHeightMultiple, number(u"Markdown Header Line Height Multiple", 1)},
        {kStyleLineSpacing, number(u"Markdown Header Line Spacing", 0)},
        {kStyleParagraphSpacingBefore, number(u"Markdown Header Paragraph Spacing Before", 5)},
        {kStyleParagraphSpacingAfter, number(u"Markdown Header Paragraph Spacing After", 2)},
    };
    setColor(style, colorForKey(preferences, u"Markdown Header Text Color", Color::textColor()),
             kStyleFontColor);
    return style;
}

}  // namespace

void renderHeaders(RenderingContext& context, const MarkdownExpression& expression) {
    if (context.text.find(expression).empty()) return;
    std::vector<ResolvedStyles> levels;
    for (std::size_t level = 1; level <= kLevels; ++level) {
        levels.emplace_back(context, headerStyle(context, level), String(level, u'#'));
    }
    context.text.apply([&](const SpanMatch& match, std::uint32_t id) {
        const std::uint32_t level = match.groups[0].end - match.groups[0].start;
        return MatchEdit::keep(match.groups[1], levels[level - 1].forMatchAt(id));
    });
}

}  // namespace QZCore
