#include <array>
#include <optional>

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

/// What all levels have in common: all but the size.
Dictionary commonStyle(const RenderingContext& context) {
    const Preferences& preferences = context.preferences;
    const auto number = [&](StringView key, double otherwise) {
        return preferences.doubleForKey(key, otherwise);
    };
    Dictionary style{
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

/// The title takes the style of its level.
class HeaderEditor final : public MatchEditor {
public:
    explicit HeaderEditor(const RenderingContext& context)
        : context_(context), commonStyle_(commonStyle(context)) {}

    MatchEdit edit(const SpanMatch& match, std::uint32_t id) override {
        const std::size_t level = match.groups[0].end - match.groups[0].start;
        return MatchEdit::keep(match.groups[1], stylesOf(level).forMatchAt(id));
    }

private:
    ResolvedStyles& stylesOf(std::size_t level) {
        std::optional<ResolvedStyles>& styles = levels_[level - 1];
        if (!styles) styles.emplace(context_, styleOf(level), String(level, u'#'));
        return *styles;
    }

    [[nodiscard]] Dictionary styleOf(std::size_t level) const {
        Dictionary style = commonStyle_;
        style.setObject(headerSize(context_, level), kStyleFontSize);
        return style;
    }

    const RenderingContext& context_;
    const Dictionary commonStyle_;
    std::array<std::optional<ResolvedStyles>, kLevels> levels_;
};

}  // namespace

Pass headerPass(RenderingContext& context) { return std::make_unique<HeaderEditor>(context); }

}  // namespace QZCore
