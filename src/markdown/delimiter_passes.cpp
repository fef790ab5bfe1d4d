#include "QZCore/color.h"
#include "markdown/passes.h"

namespace QZCore {
namespace {

/// The match without `length` units at each end.
SpanMatch::Span withinDelimiters(const SpanMatch& match, std::uint32_t length) {
    return {match.whole.start + length, match.whole.end - length};
}

void renderStyled(RenderingContext& context, const MarkdownExpression& expression,
                  std::uint32_t delimiterLength, ResolvedStyles styles) {
    if (context.text.find(expression).empty()) return;
    context.text.apply([&](const SpanMatch& match, std::uint32_t id) {
        return MatchEdit::keep(withinDelimiters(match, delimiterLength), styles.forMatchAt(id));
    });
}

/// For constructs that set one attribute and take no style.
void renderLined(RenderingContext& context, const MarkdownExpression& expression,
                 AttributeName lineStyle) {
    if (context.text.find(expression).empty()) return;
    constexpr std::uint32_t kDelimiterLength = 2;
    constexpr int kSingle = 1;
    AddedAttributes added(TextAttributes{{lineStyle, kSingle}});
    context.text.apply([&](const SpanMatch& match, std::uint32_t) {
        return MatchEdit::keep(withinDelimiters(match, kDelimiterLength), added);
    });
}

}  // namespace

void renderItalic(RenderingContext& context, const MarkdownExpression& expression) {
    // Both forms share the entry of the asterisk. Deliberate: a style sheet
    // speaks of italic, not of how it is written.
    renderStyled(context, expression, 1, {context, {{kStyleFontItalic, true}}, u"*"});
}

void renderBold(RenderingContext& context, const MarkdownExpression& expression) {
    renderStyled(context, expression, 2, {context, {{kStyleFontBold, true}}, u"**"});
}

void renderBoldItalic(RenderingContext& context, const MarkdownExpression& expression) {
    renderStyled(context, expression, 3,
                 {context, {{kStyleFontBold, true}, {kStyleFontItalic, true}}, u"***"});
}

void renderHighlight(RenderingContext& context, const MarkdownExpression& expression) {
    const Color translucentYellow = Color::colorWithCalibratedRed(1, 1, 0, 0.4);
    Dictionary style;
    setColor(style,
             colorForKey(context.preferences, u"Markdown Highlight Color", translucentYellow),
             kStyleBackgroundColor);
    renderStyled(context, expression, 2, {context, std::move(style), u"highlight"});
}

void renderInlineCode(RenderingContext& context, const MarkdownExpression& expression) {
    const Preferences& preferences = context.preferences;
    Dictionary style{
        {kStyleFontFamily, preferences.stringForKey(u"Markdown Inline Code Font", u"Menlo")},
        {kStyleBackgroundColor,
         preferences.stringForKey(u"Markdown Inline Code Background Color", u"#f1f1f1")},
    };
    setColor(style, colorForKey(preferences, u"Markdown Inline Code Text Color"), kStyleFontColor);
    // A run of two or three backticks loses only its outermost. Deliberate:
    // the inner ones show that the code was quoted with more than one.
    renderStyled(context, expression, 1,
                 {context, std::move(style), u"`", context.afterRendering()});
}

void renderUnderline(RenderingContext& context, const MarkdownExpression& expression) {
    renderLined(context, expression, NSUnderlineStyleAttributeName);
}

void renderStrikethrough(RenderingContext& context, const MarkdownExpression& expression) {
    renderLined(context, expression, NSStrikethroughStyleAttributeName);
}

}  // namespace QZCore
