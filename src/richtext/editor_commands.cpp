#include <algorithm>
#include <optional>

#include "QZCore/richtext/editor.h"
#include "platform/letter_case.h"
#include "richtext/character_changes.h"
#include "richtext/flat_text.h"

namespace QZCore {
namespace {

std::optional<LetterCase> letterCaseForCode(std::int64_t code) {
    switch (code) {
        case 1:
            return LetterCase::Upper;
        case 2:
            return LetterCase::Lower;
        case 4:
            return LetterCase::Capitalized;
        default:
            return std::nullopt;
    }
}

/// The part of `text` in `range` in another case. Each character keeps its
/// attributes, whatever it becomes.
RichText inCase(const RichText& text, Range range, LetterCase letterCase) {
    FlatText flat = FlatTextAccess::flattened(text, range);
    std::vector<std::size_t> ends;
    for (const FlatRun& run : flat.runs) ends.push_back(run.end);
    FlatText changed{{}, textInCase(flat.text, letterCase, ends)};
    for (std::size_t i = 0; i < ends.size(); ++i) {
        appendRun(changed.runs, static_cast<std::uint32_t>(ends[i]), flat.runs[i].id);
    }
    RichText result;
    std::vector<FlatText> parts;
    parts.push_back(std::move(changed));
    FlatTextAccess::replaceContents(result, std::move(parts), std::move(flat.palette));
    return result;
}

}  // namespace

// ---- The two core commands ----

std::vector<Range> RichTextEditor::rangesForUserCharacterAttributeChange() const {
    return isEnabled_ ? selectedRanges() : std::vector<Range>();
}

Range RichTextEditor::rangeForUserParagraphAttributeChange() const {
    if (!isEnabled_) return kNotFoundRange;
    const std::size_t start = selectedRange().location;
    return textStorage().paragraphRangeForRange({start, selectedRanges().back().end() - start});
}

void RichTextEditor::changeFontFamily(const CharacterChange& change) {
    if (isFieldEditor_) return;
    const std::vector<Range> ranges = rangesForUserCharacterAttributeChange();
    if (ranges.empty()) return;
    if (ranges.front().length == 0) return changeTyping(change);
    registerUndo(stateBeforeChange(), u"Font");
    CharacterChanges changes(state_.storage, change);
    for (const Range& range : ranges) {
        changes.changeCharacters(range);
        noteStorageChange();
        noteTextChange();
    }
}

/// A font panel is shown the converted font, not the smaller one of raised
/// text: its size is the one to choose from.
void RichTextEditor::changeTyping(const CharacterChange& change) {
    noteTextChange();
    CharacterChange onBaseline = change;
    onBaseline.superscript = CharacterChange::kKeepSuperscript;
    const TextAttributes converted = typingAttributesAfter(state_.typing, onBaseline);
    state_.typing = typingAttributesAfter(state_.typing, change);
    if (converted.font() == nullptr || delegate_ == nullptr) return;
    delegate_->selectedFontDidChange(*this, *converted.font(), false);
}

// NOLINTNEXTLINE(readability-function-size): as many as there are parts of a change
void RichTextEditor::changeFontFamily(const std::optional<String>& fontFamily,
                                      const std::optional<String>& faceName, float fontSize,
                                      std::uint32_t trait, const std::optional<Color>& color,
                                      std::int32_t underline, std::int32_t strikethrough,
                                      std::int32_t superscript,
                                      const std::optional<Color>& background) {
    changeFontFamily({fontFamily, faceName, fontSize, trait, color, underline, strikethrough,
                      superscript, background});
}

void RichTextEditor::changeParagraphHorizontalAlignment(std::int64_t alignment, float lineHeight) {
    const Range range = rangeForUserParagraphAttributeChange();
    const ParagraphChange change{alignment, lineHeight};
    if (range.location != kNotFound) {
        registerUndo(stateBeforeChange(), u"Paragraph");
        changeParagraphs(state_.storage, range, change);
        noteStorageChange();
    }
    if (range.length > 0) return;
    noteTextChange();
    state_.typing = typingAttributesAfter(state_.typing, change);
}

// ---- Commands of one change each ----

void RichTextEditor::setTextColor(const Color& color) { changeFontFamily({.color = color}); }

void RichTextEditor::setTextBackgroundColor(const Color& color) {
    changeFontFamily({.background = color});
}

void RichTextEditor::setTextFontFamily(StringView family) {
    changeFontFamily({.fontFamily = String(family)});
}

void RichTextEditor::setTextFontFace(StringView faceName) {
    changeFontFamily({.faceName = String(faceName)});
}

void RichTextEditor::setTextFontSize(float size) { changeFontFamily({.fontSize = size}); }

void RichTextEditor::setTextBold(bool bold) {
    changeFontFamily({.trait = bold ? kFontBold : kFontUnbold});
}

void RichTextEditor::setTextItalic(bool italic) {
    changeFontFamily({.trait = italic ? kFontItalic : kFontUnitalic});
}

void RichTextEditor::setTextUnderline(std::int32_t style) {
    changeFontFamily({.underline = style});
}

void RichTextEditor::setTextStrikethrough(std::int32_t style) {
    changeFontFamily({.strikethrough = style});
}

void RichTextEditor::setTextSuperscript(std::int32_t superscript) {
    changeFontFamily({.superscript = superscript});
}

void RichTextEditor::setTextSubscript(bool subscript) { setTextSuperscript(subscript ? -1 : 0); }

void RichTextEditor::superscript(const void* /*sender*/) { setTextSuperscript(1); }

void RichTextEditor::subscript(const void* /*sender*/) { setTextSubscript(true); }

void RichTextEditor::setTextHorizontalAlignment(std::int64_t alignment) {
    changeParagraphHorizontalAlignment(alignment, ParagraphChange::kKeepLineHeight);
}

void RichTextEditor::setTextExactLineHeight(float lineHeight) {
    changeParagraphHorizontalAlignment(ParagraphChange::kKeepAlignment, lineHeight);
}

void RichTextEditor::setTextCapitalization(std::int64_t capitalization) {
    const auto letterCase = letterCaseForCode(capitalization);
    if (!letterCase || !isEnabled_ || selectedRange().length == 0) return;
    registerUndo(stateBeforeChange(), u"Capitalization");
    std::size_t moved = 0;  // wraps round when the text gets shorter
    for (Range& range : state_.selection) {
        range.location += moved;
        if (!hasFlatForm(range.length)) continue;
        const RichText changed = inCase(textStorage(), range, *letterCase);
        state_.storage.replaceCharactersInRange(range, changed);
        moved += changed.length() - range.length;
        range.length = changed.length();
    }
    state_.storage.fixAttributesInRange({0, textStorage().length()});
    noteStorageChange();
    noteTextChange();
}

}  // namespace QZCore
