#include "QZCore/richtext/editing_commands.h"

#include <cmath>

#include "QZCore/foundation/preferences.h"
#include "QZCore/richtext/font_manager.h"
#include "richtext/attribute_names.h"
#include "richtext/character_changes.h"
#include "richtext/store.h"

namespace QZCore {
namespace {

constexpr std::int32_t kBaseline = 0;

/// One change of characters, as it acts on a set of attributes.
class CharacterCommand {
public:
    explicit CharacterCommand(const CharacterChange& change) : change_(change) {}

    [[nodiscard]] TextAttributes changed(TextAttributes attributes) const {
        const AttributeNames& names = attributeNames();
        if (changesFonts()) {
            const Font font = convertedFont(fontOf(attributes));
            attributes = attributes.withAttribute(names.font, Value::boxed(font));
        }
        if (change_.color) {
            attributes =
                attributes.withAttribute(names.foregroundColor, Value::boxed(*change_.color));
        }
        if (change_.underline != CharacterChange::kKeepLine) {
            attributes = attributes.withAttribute(names.underlineStyle, change_.underline);
        }
        if (change_.strikethrough != CharacterChange::kKeepLine) {
            attributes = attributes.withAttribute(names.strikethroughStyle, change_.strikethrough);
        }
        return attributes;
    }

    [[nodiscard]] bool changesSuperscript() const {
        return change_.superscript != CharacterChange::kKeepSuperscript;
    }

    /// The font of raised or lowered text, or of text on the baseline again,
    /// made from the one that `attributes` hold.
    [[nodiscard]] Font rescaledFont(const TextAttributes& attributes) const {
        const Font font = fontOf(attributes);
        const double percentage =
            Preferences::shared().floatForKey(u"SuperSubscript Percentage", 0.75F);
        const double size = change_.superscript == kBaseline
                                ? std::ceil(font.pointSize / percentage)
                                : std::floor(font.pointSize * percentage);
        return fonts_.convertFontToSize(font, size);
    }

    [[nodiscard]] TextAttributes superscripted(TextAttributes attributes, const Font& font) const {
        attributes = attributes.withAttribute(attributeNames().font, Value::boxed(font));
        switch (change_.superscript) {
            case kBaseline:
                return attributes.withoutAttribute(NSBaselineOffsetAttributeName)
                    .withoutAttribute(NSSuperscriptAttributeName);
            case 1:
            case -1:
                return attributes.withAttribute(NSSuperscriptAttributeName, change_.superscript);
            default:
                return attributes;
        }
    }

    [[nodiscard]] TextAttributes withBackground(const TextAttributes& attributes) const {
        if (!change_.background) return attributes;
        const bool isClear = *change_.background == Color::clearColor();
        return attributes.withAttribute(attributeNames().backgroundColor,
                                        isClear ? Value() : Value::boxed(*change_.background));
    }

private:
    [[nodiscard]] bool changesFonts() const {
        return change_.faceName || change_.fontFamily || change_.fontSize > 0 || change_.trait != 0;
    }

    [[nodiscard]] Font fontOf(const TextAttributes& attributes) const {
        const Font* font = attributes.font();
        return font == nullptr ? fonts_.userFont(kFontDefaultSize) : *font;
    }

    [[nodiscard]] Font convertedFont(Font font) const {
        if (change_.faceName) {
            font = fonts_.convertFontToFace(font, *change_.faceName);
        } else if (change_.fontFamily) {
            font = fonts_.convertFontToFamily(font, *change_.fontFamily);
        }
        if (change_.fontSize > 0) {
            font = fonts_.convertFontToSize(font, double{change_.fontSize});
        }
        if (change_.trait == 0) return font;
        font = fonts_.convertFontToHaveTrait(font, change_.trait);
        const bool staysBold = change_.trait == kFontUnbold && (font.traits & kFontBold) != 0;
        return staysBold ? fonts_.convertFontToLighterWeight(font) : font;
    }

    const CharacterChange& change_;
    FontManager fonts_ = FontManager::shared();
};

TextAttributes withParagraphStyle(const TextAttributes& attributes, const ParagraphChange& change) {
    const ParagraphStyle* own = attributes.paragraphStyle();
    ParagraphStyle style = own == nullptr ? ParagraphStyle() : *own;
    if (change.lineHeight != ParagraphChange::kKeepLineHeight && std::isfinite(change.lineHeight)) {
        style.minimumLineHeight = double{change.lineHeight};
        style.maximumLineHeight = double{change.lineHeight};
    }
    if (change.alignment != ParagraphChange::kKeepAlignment) {
        style.alignment = textAlignmentForCode(change.alignment);
    }
    return attributes.withAttribute(attributeNames().paragraphStyle, Value::boxed(style));
}

}  // namespace

TextAttributes typingAttributesAfter(const TextAttributes& attributes,
                                     const CharacterChange& change) {
    const CharacterCommand command(change);
    TextAttributes changed = command.changed(attributes);
    if (command.changesSuperscript()) {
        changed = command.superscripted(changed, command.rescaledFont(changed));
    }
    return command.withBackground(changed);
}

TextAttributes typingAttributesAfter(const TextAttributes& attributes,
                                     const ParagraphChange& change) {
    return withParagraphStyle(attributes, change);
}

void CharacterChanges::changeCharacters(Range range) {
    range = clampedRange(range, text_.length());
    if (range.length == 0) return;
    const CharacterCommand command(change_);
    const RichTextEditing editing(text_);
    // The font that raised text takes is the one at the start, as it is by then.
    const TextAttributes first = command.changed(text_.attributesAtIndex(range.location));
    const Font font = command.rescaledFont(first);
    AttributeSweep::change(text_, range, [&](const TextAttributes& before) {
        TextAttributes after = command.changed(before);
        if (command.changesSuperscript()) after = command.superscripted(after, font);
        return command.withBackground(after);
    });
    text_.fixAttributesInRange(isConsistent_ ? range : Range{0, text_.length()});
    isConsistent_ = true;
}

void changeCharacters(RichText& text, Range range, const CharacterChange& change) {
    CharacterChanges(text, change).changeCharacters(range);
}

void changeCharacters(RichText& text, const std::vector<Range>& ranges,
                      TextAttributes& typingAttributes, const CharacterChange& change) {
    CharacterChanges changes(text, change);
    for (const Range& range : ranges) {
        if (range.length == 0) {
            typingAttributes = typingAttributesAfter(typingAttributes, change);
        } else if (range.location != kNotFound) {
            changes.changeCharacters(range);
        }
    }
}

void changeParagraphs(RichText& text, Range range, const ParagraphChange& change) {
    if (range.location == kNotFound) return;
    const RichTextEditing editing(text);
    AttributeSweep::change(text, range, [&](const TextAttributes& before) {
        return withParagraphStyle(before, change);
    });
    text.fixAttributesInRange({0, text.length()});
}

void changeParagraphs(RichText& text, Range range, TextAttributes& typingAttributes,
                      const ParagraphChange& change) {
    changeParagraphs(text, range, change);
    if (range.length == 0) typingAttributes = typingAttributesAfter(typingAttributes, change);
}

}  // namespace QZCore
