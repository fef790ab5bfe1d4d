#include "QZCore/markdown/rendering.h"

#include "QZCore/markdown/detection.h"
#include "QZCore/platform/fonts.h"
#include "markdown/passes.h"
#include "richtext/attribute_fixing.h"

namespace QZCore {
namespace {

constexpr double kDefaultFontSize = 12;

struct Pass {
    StringView key;
    void (*render)(RenderingContext& context, const MarkdownExpression& expression);
};

// Code comes first, so that its content is marked before an emphasis pass could
// see markers in it. Single markers come before double and triple ones; the
// expressions keep them from matching inside those.
constexpr Pass kPasses[] = {
    {kMarkdownCodeBlock, renderCodeBlocks},
    {kMarkdownLink, renderLinks},
    {kMarkdownInlineCode, renderInlineCode},
    {kMarkdownEmoji, renderEmoji},
    {kMarkdownItalicAsterisk, renderItalic},
    {kMarkdownItalicUnderscore, renderItalic},
    {kMarkdownBold, renderBold},
    {kMarkdownBoldItalic, renderBoldItalic},
    {kMarkdownUnderline, renderUnderline},
    {kMarkdownStrikethrough, renderStrikethrough},
    {kMarkdownHighlightEquals, renderHighlight},
    {kMarkdownHighlightCaret, renderHighlight},
    {kMarkdownHighlightColon, renderHighlight},
    {kMarkdownBlockQuote, renderBlockQuotes},
    {kMarkdownHeaders, renderHeaders},
};

/// Adds what the style sheet says of the whole text and notes its font.
void applyBodyStyle(RenderingContext& context) {
    context.baseFont = context.fontOf(context.text.firstId());
    const Dictionary* body = context.styleNamed(u"body");
    if (body == nullptr) return;
    context.text.addEverywhere(fontAttributesWithDefaultStyle(nullptr, body, context.baseFont));
    context.baseFont = context.fontOf(context.text.firstId());
}

}  // namespace

void renderContainedMarkdownWithStyles(RichText& text, const StyleSheet& styles,
                                       const MarkdownSyntax& syntax,
                                       const Preferences& preferences) {
    if (text.empty() || text.length() >= kFlatTextLimit) return;
    const MarkdownExpression* escapes = syntax.expressionForKey(kMarkdownEscape);
    RenderText rendered(FlatTextAccess::flattened(text, {0, text.length()}), escapes);
    RenderingContext context{rendered, styles, preferences,
                             sharedFontCatalog()->userFont(kDefaultFontSize)};
    applyBodyStyle(context);
    for (const Pass& pass : kPasses) {
        const MarkdownExpression* expression = syntax.expressionForKey(pass.key);
        if (expression != nullptr) pass.render(context, *expression);
    }
    if (escapes != nullptr) rendered.resolveEscapes(*escapes);
    rendered.removeIgnoreMarks();
    FlatText result = rendered.take();
    fixAttributes(result, *sharedFontCatalog());
    FlatTextAccess::replaceContents(text, std::move(result));
}

void renderContainedMarkdownWithStyles(RichText& text, const StyleSheet& styles) {
    renderContainedMarkdownWithStyles(text, styles, allMarkdownRegex(), Preferences::shared());
}

void renderContainedMarkdown(RichText& text) { renderContainedMarkdownWithStyles(text, {}); }

RichText attributedStringWithMarkdown(StringView string, const TextAttributes& attributes) {
    RichText text(string, attributes);
    renderContainedMarkdown(text);
    return text;
}

bool containsMarkdown(const RichText& text) { return containsMarkdown(text.string()); }

}  // namespace QZCore
