#include <utility>

#include "QZCore/color.h"
#include "markdown/passes.h"

namespace QZCore {
namespace {

/// One group of the match takes the style; the rest of the match goes.
class StyledGroup final : public MatchEditor {
public:
    StyledGroup(std::size_t group, ResolvedStyles styles)
        : group_(group), styles_(std::move(styles)) {}

    MatchEdit edit(const SpanMatch& match, std::uint32_t id) override {
        return MatchEdit::keep(match.groups[group_], styles_.forMatchAt(id));
    }

private:
    std::size_t group_;
    ResolvedStyles styles_;
};

}  // namespace

Pass codeBlockPass(RenderingContext& context) {
    constexpr std::size_t kCode = 0;
    const Preferences& preferences = context.preferences;
    Dictionary style{
        {kStyleFontFamily, preferences.stringForKey(u"Markdown Code Block Font", u"Menlo")},
        {kStyleBackgroundColor,
         preferences.stringForKey(u"Markdown Code Block Background Color", u"#f1f1f1")},
    };
    setColor(style, colorForKey(preferences, u"Markdown Code Block Text Color", Color::textColor()),
             kStyleFontColor);
    return std::make_unique<StyledGroup>(
        kCode, ResolvedStyles(context, std::move(style), u"```", context.afterRendering()));
}

Pass blockQuotePass(RenderingContext& context) {
    constexpr std::size_t kQuotedText = 1;
    const Preferences& preferences = context.preferences;
    const auto number = [&](StringView key, double otherwise) {
        return preferences.doubleForKey(key, otherwise);
    };
    // The tail indent is measured from the other margin when it is negative, so
    // that a quote is inset alike on both sides.
    Dictionary style{
        {kStyleFirstLineHeadIndent, number(u"Markdown Block Quote First Line Head Indent", 18)},
        {kStyleHeadIndent, number(u"Markdown Block Quote Head Indent", 18)},
        {kStyleTailIndent, number(u"Markdown Block Quote Tail Indent", -18)},
        {kStyleParagraphSpacingAfter, number(u"Markdown Block Quote Paragraph Spacing After", 10)},
    };
    setColor(style,
             colorForKey(preferences, u"Markdown Block Quote Text Color", Color::textColor()),
             kStyleFontColor);
    return std::make_unique<StyledGroup>(kQuotedText,
                                         ResolvedStyles(context, std::move(style), u">"));
}

}  // namespace QZCore
