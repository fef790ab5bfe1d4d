#include "QZCore/richtext/editor.h"
#include "QZCore/richtext/font_manager.h"
#include "platform/letter_case.h"
#include "platform/locale_direction.h"

namespace QZCore {
namespace {

bool hasTrait(const Font* font, std::uint32_t trait) {
    return font != nullptr && (font->traits & trait) != 0;
}

double baselineOffset(const TextAttributes& attributes) {
    return attributes.objectForKey(NSBaselineOffsetAttributeName).doubleValue();
}

std::int32_t superscriptLevel(const TextAttributes& attributes) {
    return attributes.objectForKey(NSSuperscriptAttributeName).intValue();
}

}  // namespace

TextAttributes RichTextEditor::activeTextAttributes() const {
    if (isAtInsertionPoint()) return typingAttributes();
    return textStorage().attributesAtIndex(selectedRange().location);
}

bool RichTextEditor::isAtInsertionPoint() const {
    return selectedRange().length == 0 || selectedRange().location >= textStorage().length();
}

bool RichTextEditor::isTextBold() const {
    return hasTrait(activeTextAttributes().font(), kFontBold);
}

bool RichTextEditor::isTextItalic() const {
    return hasTrait(activeTextAttributes().font(), kFontItalic);
}

bool RichTextEditor::isTextUnderline() const {
    return activeTextAttributes().underlineStyle() != 0;
}

bool RichTextEditor::isTextStrikethrough() const {
    return activeTextAttributes().strikethroughStyle() != 0;
}

bool RichTextEditor::isTextSuperscript() const {
    const TextAttributes attributes = activeTextAttributes();
    return baselineOffset(attributes) > 0 || superscriptLevel(attributes) > 0;
}

bool RichTextEditor::isTextSubscript() const {
    const TextAttributes attributes = activeTextAttributes();
    return baselineOffset(attributes) < 0 || superscriptLevel(attributes) < 0;
}

std::int64_t RichTextEditor::textHorizontalAlignment() const {
    const TextAttributes attributes = activeTextAttributes();
    const ParagraphStyle* style = attributes.paragraphStyle();
    return static_cast<std::int64_t>(style == nullptr ? TextAlignment::Natural : style->alignment);
}

std::int64_t RichTextEditor::textCapitalization() const {
    const String text = textStorage().string(selectedRange());
    if (text.empty()) return 0;
    if (text == textInCase(text, LetterCase::Upper)) return 1;
    if (text == textInCase(text, LetterCase::Lower)) return 2;
    return text == textInCase(text, LetterCase::Capitalized) ? 4 : 0;
}

bool RichTextEditor::canApplyTrait(std::uint32_t trait) const {
    if (!isAtInsertionPoint()) return textStorage().canApplyTrait(trait, selectedRange());
    const Font* font = typingAttributes().font();
    return font != nullptr && FontManager::shared().canFont(*font, trait);
}

bool RichTextEditor::doesHaveTrait(std::uint32_t trait) const {
    if (!isAtInsertionPoint()) return textStorage().doesHaveTrait(trait, selectedRange());
    return canApplyTrait(trait) && hasTrait(typingAttributes().font(), trait);
}

bool RichTextEditor::actualNaturalTextAlignment() {
    static const bool isRightToLeft = userLanguageRunsRightToLeft();
    return isRightToLeft;
}

}  // namespace QZCore
