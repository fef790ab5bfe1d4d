#include <utility>

#include "QZCore/color.h"
#include "markdown/passes.h"

namespace QZCore {

void renderCodeBlocks(RenderingContext& context, const MarkdownExpression& expression) {
    if (context.text.find(expression).empty()) return;
    const Preferences& preferences = context.preferences;
    Dictionary style{
        {kStyleFontFamily, preferences.stringForKey(u"Markdown Code Block Font", u"Menlo")},
        {kStyleBackgroundColor,
         preferences.stringForKey(u"Markdown Code Block Background Color", u"#f1f1f1")},
    };
    setColor(style, colorForKey(preferences, u"Markdown Code Block Text Color", Color::textColor()),
             kStyleFontColor);
    ResolvedStyles styles(context, std::move(style), u"```", context.afterRendering());
    context.text.apply([&](const SpanMatch& match, std::uint32_t id) {
        return MatchEdit::keep(match.groups[0], styles.forMatchAt(id));
    });
}

void renderBlockQuotes(RenderingContext& context, const MarkdownExpression& expression) {
    if (context.text.find(expression).empty()) return;
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
    ResolvedStyles styles(context, std::move(style), u">");
    context.text.apply([&](const SpanMatch& match, std::uint32_t id) {
        return MatchEdit::keep(match.groups[1], styles.forMatchAt(id));
    });
}

}  // namespace QZCore
