#include "QZCore/color.h"
#include "markdown/passes.h"

namespace QZCore {
namespace {

String textColorString() { return Color::textColor().stringForColor(); }

/// The preference's colour string, read as a colour and printed again so that
/// an unreadable one is black, as everywhere.
String colorStringForKey(const Preferences& preferences, StringView key) {
    const auto color = colorForKey(preferences, key);
    return color ? color->stringForColor() : textColorString();
}

}  // namespace

void renderCodeBlocks(RenderingContext& context, const MarkdownExpression& expression) {
    if (context.text.find(expression).empty()) return;
    const Preferences& preferences = context.preferences;
    ResolvedStyles styles(
        context,
        {{kStyleFontFamily, preferences.stringForKey(u"Markdown Code Block Font", u"Menlo")},
         {kStyleFontColor, colorStringForKey(preferences, u"Markdown Code Block Text Color")},
         {kStyleBackgroundColor,
          preferences.stringForKey(u"Markdown Code Block Background Color", u"#f1f1f1")}},
        u"```", context.afterRendering());
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
    ResolvedStyles styles(
        context,
        {{kStyleFontColor, colorStringForKey(preferences, u"Markdown Block Quote Text Color")},
         {kStyleFirstLineHeadIndent, number(u"Markdown Block Quote First Line Head Indent", 18)},
         {kStyleHeadIndent, number(u"Markdown Block Quote Head Indent", 18)},
         {kStyleTailIndent, number(u"Markdown Block Quote Tail Indent", -18)},
         {kStyleParagraphSpacingAfter,
          number(u"Markdown Block Quote Paragraph Spacing After", 10)}},
        u">");
    context.text.apply([&](const SpanMatch& match, std::uint32_t id) {
        return MatchEdit::keep(match.groups[1], styles.forMatchAt(id));
    });
}

}  // namespace QZCore
