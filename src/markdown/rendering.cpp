#include "QZCore/markdown/rendering.h"

#include <array>
#include <memory>
#include <optional>
#include <utility>

#include "QZCore/markdown/detection.h"
#include "QZCore/platform/fonts.h"
#include "markdown/list_rendering.h"
#include "markdown/note_parts.h"
#include "markdown/passes.h"
#include "markdown/rendering_in_parts.h"
#include "richtext/attribute_fixing.h"

namespace QZCore {
namespace {

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
    NoteRenderer(const NoteSource& note, const StyleSheet& styles, const MarkdownSyntax& syntax,
                 const Preferences& preferences)
        : syntax_(syntax),
          catalog_(sharedFontCatalog()),
          context_{text_, styles, preferences, catalog_->userFont(kFontDefaultSize)},
          body_(bodyStyle(context_, note.firstAttributes())),
          fixing_(*catalog_) {}

    /// Renders `part`, whose runs are numbered by `palette`. `startsNote` says
    /// whether it is the first one.
    void render(FlatText& part, AttributePalette& palette, bool startsNote) {
        part.palette = std::move(palette);
        text_.load(std::move(part), body_);
        for (std::size_t i = 0; i < kPasses.size(); ++i) applyPass(i);
        applyListPass(startsNote);
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

    /// Lists come last. They are built anew, not edited.
    void applyListPass(bool startsNote) {
        const MarkdownExpression* list = syntax_.expressionForKey(kMarkdownList);
        const MarkdownExpression* line = syntax_.expressionForKey(kMarkdownListLine);
        if (list == nullptr || line == nullptr || text_.find(*list).empty()) return;
        if (!lists_) {
            const ListSettings settings{context_.styles, context_.preferences, *line};
            lists_.emplace(settings, text_.palette());
        }
        renderLists(text_, startsNote, *lists_);
    }

    const MarkdownSyntax& syntax_;
    std::shared_ptr<const FontCatalog> catalog_;
    RenderText text_;
    RenderingContext context_;
    AddedAttributes body_;
    AttributeFixing fixing_;
    std::array<Pass, kPasses.size()> passes_;
    std::optional<ListRenderer> lists_;
};

/// A rich text.
class RichNote final : public NoteSource {
public:
    explicit RichNote(const RichText& text) : text_(text) {}

    std::size_t length() const override { return text_.length(); }
    TextAttributes firstAttributes() const override { return text_.attributesAtIndex(0); }
    FlatText part(Range range, AttributePalette palette) const override {
        return FlatTextAccess::flattened(text_, range, std::move(palette));
    }

private:
    const RichText& text_;
};

/// A plain string with one set of attributes.
class PlainNote final : public NoteSource {
public:
    PlainNote(StringView text, const TextAttributes& attributes)
        : text_(text), attributes_(attributes) {}

    std::size_t length() const override { return text_.size(); }
    TextAttributes firstAttributes() const override { return attributes_; }
    FlatText part(Range range, AttributePalette palette) const override {
        FlatText flat{{{}, std::move(palette)}, String(text_.substr(range.location, range.length))};
        const std::uint32_t id = flat.palette.idOf(attributes_);
        appendRun(flat.runs, static_cast<std::uint32_t>(flat.text.size()), id);
        return flat;
    }

private:
    StringView text_;
    const TextAttributes& attributes_;
};

/// Replaces the contents of `text` by the rendered note, which may be `text`.
void render(const NoteSource& note, const StyleSheet& styles, const MarkdownSyntax& syntax,
            const Preferences& preferences, std::size_t partLength, RichText& text) {
    AttributePalette palette;
    std::vector<FlatText> parts = notePartsOf(note, syntax, palette, partLength);
    NoteRenderer renderer(note, styles, syntax, preferences);
    // From the last to the first, as the matches of a pass are visited: images
    // are fetched in that order.
    for (std::size_t i = parts.size(); i-- > 0;) renderer.render(parts[i], palette, i == 0);
    FlatTextAccess::replaceContents(text, std::move(parts), std::move(palette));
}

}  // namespace

void renderContainedMarkdownWithStyles(RichText& text, const StyleSheet& styles,
                                       const MarkdownSyntax& syntax, const Preferences& preferences,
                                       std::size_t partLength) {
    if (!hasFlatForm(text.length())) return;
    render(RichNote(text), styles, syntax, preferences, partLength, text);
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
    if (!hasFlatForm(string.size())) return RichText(string, attributes);
    RichText text;
    render(PlainNote(string, attributes), {}, allMarkdownRegex(), Preferences::shared(),
           kNotePartLength, text);
    return text;
}

bool containsMarkdown(const RichText& text) { return containsMarkdown(text.string()); }

}  // namespace QZCore
