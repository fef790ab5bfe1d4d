#include <utility>

#include "QZCore/color.h"
#include "markdown/passes.h"
#include "richtext/attribute_names.h"

namespace QZCore {
namespace {

/// The match without `length` units at each end.
SpanMatch::Span withinDelimiters(const SpanMatch& match, std::uint32_t length) {
    return {match.whole.start + length, match.whole.end - length};
}

/// The content takes a style.
class StyledContent final : public MatchEditor {
public:
    StyledContent(std::uint32_t delimiterLength, ResolvedStyles styles)
        : delimiterLength_(delimiterLength), styles_(std::move(styles)) {}

    MatchEdit edit(const SpanMatch& match, std::uint32_t id) override {
        return MatchEdit::keep(withinDelimiters(match, delimiterLength_), styles_.forMatchAt(id));
    }

private:
    std::uint32_t delimiterLength_;
    ResolvedStyles styles_;
};

Pass styledPass(std::uint32_t delimiterLength, ResolvedStyles styles) {
    return std::make_unique<StyledContent>(delimiterLength, std::move(styles));
}

/// The content takes a single line, and no style.
class LinedContent final : public MatchEditor {
public:
    explicit LinedContent(AttributeName lineStyle) : added_(TextAttributes{{lineStyle, kSingle}}) {}

    MatchEdit edit(const SpanMatch& match, std::uint32_t) override {
        return MatchEdit::keep(withinDelimiters(match, kDelimiterLength), added_);
    }

private:
    static constexpr std::uint32_t kDelimiterLength = 2;
    static constexpr int kSingle = 1;

    AddedAttributes added_;
};

}  // namespace

Pass italicPass(RenderingContext& context) {
    // Both forms share the entry of the asterisk. Deliberate: a style sheet
    // speaks of italic, not of how it is written.
    return styledPass(1, {context, {{kStyleFontItalic, true}}, u"*"});
}

Pass boldPass(RenderingContext& context) {
    return styledPass(2, {context, {{kStyleFontBold, true}}, u"**"});
}

Pass boldItalicPass(RenderingContext& context) {
    return styledPass(3, {context, {{kStyleFontBold, true}, {kStyleFontItalic, true}}, u"***"});
}

Pass highlightPass(RenderingContext& context) {
    const Color translucentYellow = Color::colorWithCalibratedRed(1, 1, 0, 0.4);
    Dictionary style;
    setColor(style,
             colorForKey(context.preferences, u"Markdown Highlight Color", translucentYellow),
             kStyleBackgroundColor);
    return styledPass(2, {context, std::move(style), u"highlight"});
}

Pass inlineCodePass(RenderingContext& context) {
    const Preferences& preferences = context.preferences;
    Dictionary style{
        {kStyleFontFamily, preferences.stringForKey(u"Markdown Inline Code Font", u"Menlo")},
        {kStyleBackgroundColor,
         preferences.stringForKey(u"Markdown Inline Code Background Color", u"#f1f1f1")},
    };
    setColor(style, colorForKey(preferences, u"Markdown Inline Code Text Color"), kStyleFontColor);
    // A run of two or three backticks loses only its outermost. Deliberate:
    // the inner ones show that the code was quoted with more than one.
    return styledPass(1, {context, std::move(style), u"`", context.afterRendering()});
}

Pass underlinePass(RenderingContext&) {
    return std::make_unique<LinedContent>(attributeNames().underlineStyle);
}

Pass strikethroughPass(RenderingContext&) {
    return std::make_unique<LinedContent>(attributeNames().strikethroughStyle);
}

}  // namespace QZCore
