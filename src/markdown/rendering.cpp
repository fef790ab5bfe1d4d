#include "QZCore/markdown/rendering.h"

#include <array>
#include <memory>
#include <utility>

#include "QZCore/markdown/detection.h"
#include "QZCore/platform/fonts.h"
#include "markdown/note_parts.h"
#include "markdown/passes.h"
#include "markdown/rendering_in_parts.h"
#include "richtext/attribute_fixing.h"

namespace QZCore {
namespace {

constexpr double kDefaultFontSize = 12;

struct PassRow {
    StringView key;
    Pass (*make)(RenderingContext& context);
};

// Code comes first, so that its content is marked before an emphasis pass could
// see markers in it. Single markers come before double and triple ones; the
// expressions keep them from matching inside those.
constexpr std::array kPasses{
    PassRow{kMarkdownCodeBlock, codeBlockPass},
    PassRow{kMarkdownLink, linkPass},
    PassRow{kMarkdownInlineCode, inlineCodePass},
    PassRow{kMarkdownEmoji, emojiPass},
    PassRow{kMarkdownItalicAsterisk, italicPass},
    PassRow{kMarkdownItalicUnderscore, italicPass},
    PassRow{kMarkdownBold, boldPass},
    PassRow{kMarkdownBoldItalic, boldItalicPass},
    PassRow{kMarkdownUnderline, underlinePass},
    PassRow{kMarkdownStrikethrough, strikethroughPass},
    PassRow{kMarkdownHighlightEquals, highlightPass},
    PassRow{kMarkdownHighlightCaret, highlightPass},
    PassRow{kMarkdownHighlightColon, highlightPass},
    PassRow{kMarkdownBlockQuote, blockQuotePass},
    PassRow{kMarkdownHeaders, headerPass},
};

/// What the style sheet says of the whole text; notes the font at its start.
TextAttributes bodyStyle(RenderingContext& context, const TextAttributes& first) {
    if (first.font() != nullptr) context.baseFont = *first.font();
    const Dictionary* body = context.styleNamed(u"body");
    if (body == nullptr) return {};
    TextAttributes style = fontAttributesWithDefaultStyle(nullptr, body, context.baseFont);
    if (style.font() != nullptr) context.baseFont = *style.font();
    return style;
}

/// Renders the parts of one note, in any order.
class NoteRenderer {
public:
    NoteRenderer(const RichText& text, const StyleSheet& styles, const MarkdownSyntax& syntax,
                 const Preferences& preferences)
        : syntax_(syntax),
          catalog_(sharedFontCatalog()),
          context_{text_, styles, preferences, catalog_->userFont(kDefaultFontSize)},
          body_(bodyStyle(context_, text.attributesAtIndex(0))),
          fixing_(*catalog_) {}

    /// Renders `part`, whose runs are numbered by `palette`.
    void render(FlatText& part, AttributePalette& palette) {
        part.palette = std::move(palette);
        text_.load(std::move(part), body_);
        for (std::size_t i = 0; i < kPasses.size(); ++i) applyPass(i);
        part = text_.take();
        fixing_.fixAttributes(part);
        palette = std::move(part.palette);
    }

private:
    void applyPass(std::size_t index) {
        const MarkdownExpression* expression = syntax_.expressionForKey(kPasses[index].key);
        if (expression == nullptr || text_.find(*expression).empty()) return;
        Pass& pass = passes_[index];
        if (pass == nullptr) pass = kPasses[index].make(context_);
        pass->beginPart();
        text_.apply(*pass);
    }

    const MarkdownSyntax& syntax_;
    std::shared_ptr<const FontCatalog> catalog_;
    RenderText text_;
    RenderingContext context_;
    AddedAttributes body_;
    AttributeFixing fixing_;
    std::array<Pass, kPasses.size()> passes_;
};

}  // namespace

void renderContainedMarkdownWithStyles(RichText& text, const StyleSheet& styles,
                                       const MarkdownSyntax& syntax, const Preferences& preferences,
                                       std::size_t partLength) {
    if (text.empty() || text.length() >= kFlatTextLimit) return;
    AttributePalette palette;
    std::vector<FlatText> parts = notePartsOf(text, syntax, palette, partLength);
    NoteRenderer renderer(text, styles, syntax, preferences);
    // From the last to the first, as the matches of a pass are visited: images
    // are fetched in that order.
    for (std::size_t i = parts.size(); i-- > 0;) renderer.render(parts[i], palette);
    FlatTextAccess::replaceContents(text, std::move(parts), std::move(palette));
}

void renderContainedMarkdownWithStyles(RichText& text, const StyleSheet& styles,
                                       const MarkdownSyntax& syntax,
                                       const Preferences& preferences) {
    renderContainedMarkdownWithStyles(text, styles, syntax, preferences, kNotePartLength);
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
