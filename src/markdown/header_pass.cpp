#include <cmath>

#include "QZCore/color.h"
#include "markdown/passes.h"

namespace QZCore {
namespace {

/// The style of one header level, resolved for each font size at which such
/// headers start: without a size of its own a level takes the font's.
class HeaderLevel {
public:
    HeaderLevel(RenderingContext& context, std::size_t level) : context_(context), level_(level) {}

    AddedAttributes& forMatchAt(std::uint32_t id) {
        const auto known = resolved_.find(id);
        if (known != resolved_.end()) return known->second;
        const Dictionary style = defaultStyle(context_.fontOf(id));
        const Dictionary* userStyle = context_.styleNamed(String(level_, u'#'));
        return resolved_
            .emplace(id, AddedAttributes(fontAttributesWithDefaultStyle(&style, userStyle,
                                                                        context_.fontOf(id))))
            .first->second;
    }

private:
    [[nodiscard]] std::int32_t size(const Font& baseFont) const {
        String sizes =
            context_.preferences.stringForKey(u"Markdown Header Sizes", u"32, 24, 18, 16, 13, 11");
        StringView rest = sizes;
        for (std::size_t i = 1; i < level_; ++i) {
            const std::size_t comma = rest.find(u',');
            if (comma == StringView::npos) return Value(baseFont.pointSize).intValue();
            rest.remove_prefix(comma + 1);
        }
        return intValue(rest);
    }

    [[nodiscard]] Dictionary defaultStyle(const Font& baseFont) const {
        const Preferences& preferences = context_.preferences;
        const Color color =
            colorForKey(preferences, u"Markdown Header Text Color").value_or(Color::textColor());
        const auto number = [&](StringView key, double otherwise) {
            return preferences.doubleForKey(key, otherwise);
        };
        return {
            {kStyleFontColor, color.stringForColor()},
            {kStyleFontSize, size(baseFont)},
            {kStyleFontBold, preferences.boolForKey(u"Markdown Header Bold", true)},
            {kStyleLineHeightMultiple, number(u"Markdown Header Line Height Multiple", 1)},
            {kStyleLineSpacing, number(u"Markdown Header Line Spacing", 0)},
            {kStyleParagraphSpacingBefore, number(u"Markdown Header Paragraph Spacing Before", 5)},
            {kStyleParagraphSpacingAfter, number(u"Markdown Header Paragraph Spacing After", 2)},
        };
    }

    RenderingContext& context_;
    std::size_t level_;
    std::unordered_map<std::uint32_t, AddedAttributes> resolved_;
};

}  // namespace

void renderHeaders(RenderingContext& context, const MarkdownExpression& expression) {
    if (context.text.find(expression).empty()) return;
    HeaderLevel levels[] = {{context, 1}, {context, 2}, {context, 3},
                            {context, 4}, {context, 5}, {context, 6}};
    context.text.apply([&](const SpanMatch& match, std::uint32_t id) {
        const std::uint32_t level = match.groups[0].end - match.groups[0].start;
        return MatchEdit::keep(match.groups[1], levels[level - 1].forMatchAt(id));
    });
}

}  // namespace QZCore
