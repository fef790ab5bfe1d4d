// RichTextEditor: the part of a text editor that has no window.
//
// An editor holds a text, a selection, the attributes of what is typed next,
// and whether the text may be changed. Formatting commands act on the selection
// or, at an insertion point, on the typing attributes; state queries tell an
// inspector what it should show. With an undo manager, every change can be
// undone; typing that goes on at one place is one step.
//
// An editor is used on the thread that owns it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/export.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"
#include "QZCore/richtext/editing_commands.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

class RichTextEditor;
class UndoManager;

/// Is told what happens in an editor. Every operation does nothing unless it is
/// overridden.
class QZ_EXPORT RichTextEditorDelegate {
public:
    virtual ~RichTextEditorDelegate();

    /// The user changed the text or the attributes of what is typed next.
    virtual void textDidChange(RichTextEditor& editor);
    /// The storage was changed and its attributes have been fixed.
    virtual void textStorageDidProcessEditing(RichTextEditor& editor);
    /// A font panel should show `font`, that of typed text before it is raised or
    /// lowered.
    virtual void selectedFontDidChange(RichTextEditor& editor, const Font& font, bool isMultiple);
};

/// A text with a selection.
class QZ_EXPORT RichTextEditor {
public:
    /// An editor of `text`, with the insertion point at its end.
    explicit RichTextEditor(RichText text = {});
    ~RichTextEditor();
    RichTextEditor(const RichTextEditor&) = delete;
    RichTextEditor& operator=(const RichTextEditor&) = delete;

    // ---- Parts ----

    /// The text.
    [[nodiscard]] const RichText& textStorage() const { return state_.storage; }
    /// Replaces the text, as one change, and puts the insertion point at its
    /// end.
    void setTextStorage(const RichText& textStorage);

    /// The selection: one empty range, or ranges in order that do not touch.
    [[nodiscard]] const std::vector<Range>& selectedRanges() const { return state_.selection; }
    /// The first selected range.
    [[nodiscard]] Range selectedRange() const { return state_.selection.front(); }
    /// Selects `ranges`, cut to the text, sorted and joined where they touch;
    /// the end of the text when there are none. What is typed next takes the
    /// attributes of the selection's first character, or at an insertion point
    /// of the character before it in its paragraph, else of the one behind it.
    void setSelectedRanges(std::vector<Range> ranges);
    /// Selects one range.
    void setSelectedRange(Range range) { setSelectedRanges({range}); }

    /// The attributes of what is typed next.
    [[nodiscard]] const TextAttributes& typingAttributes() const { return state_.typing; }
    /// Sets them.
    void setTypingAttributes(const TextAttributes& attributes) { state_.typing = attributes; }

    /// Whether this edits the one line of a control. Character commands leave
    /// such a text alone.
    [[nodiscard]] bool isFieldEditor() const { return isFieldEditor_; }
    /// Sets it.
    void setFieldEditor(bool isFieldEditor) { isFieldEditor_ = isFieldEditor; }

    /// Whether the text can be selected and changed.
    [[nodiscard]] bool isEnabled() const { return isEnabled_; }
    /// Makes the text selectable and editable, or neither, and lets text
    /// without a colour of its own be shown in the colour of enabled or
    /// disabled controls. The text itself keeps its colours.
    void setEnabled(bool enabled) { isEnabled_ = enabled; }
    /// The colour in which text without one is shown.
    [[nodiscard]] Color textColor() const;

    /// Is told of changes; may be null. The editor does not own it.
    void setDelegate(RichTextEditorDelegate* delegate) { delegate_ = delegate; }
    /// Where changes are registered; may be empty. The actions registered with
    /// a manager before are removed from it.
    void setUndoManager(std::shared_ptr<UndoManager> undoManager);

    // ---- Typing ----

    /// Replaces the selection by `string` with the active attributes; only the
    /// first of several ranges takes it, the others are deleted. The insertion
    /// point comes to stand behind it.
    void insertText(StringView string);
    /// Replaces the selection in the same way by text with its own attributes.
    void insertAttributedText(const RichText& string);
    /// Deletes the selection or, at an insertion point, the composed character
    /// before it; a carriage return together with its line feed.
    void deleteBackward();

    // ---- The two core commands ----

    /// The ranges that a character command acts on: the selection, or none when
    /// the editor is disabled.
    [[nodiscard]] std::vector<Range> rangesForUserCharacterAttributeChange() const;
    /// The range that a paragraph command acts on: the paragraphs from the first
    /// to the last that the selection touches; nowhere when the editor is
    /// disabled.
    [[nodiscard]] Range rangeForUserParagraphAttributeChange() const;

    /// Changes the formatting of the selected characters and tells the delegate
    /// after each range that the text changed. At an insertion point, changes
    /// the typing attributes instead.
    void changeFontFamily(const CharacterChange& change);
    /// The same, part by part; see `CharacterChange`.
    void changeFontFamily(const std::optional<String>& fontFamily,
                          const std::optional<String>& faceName, float fontSize,
                          std::uint32_t trait, const std::optional<Color>& color,
                          std::int32_t underline, std::int32_t strikethrough,
                          std::int32_t superscript, const std::optional<Color>& background);
    /// Changes the formatting of the selected paragraphs and, where there is no
    /// paragraph text, of the typing attributes; see `ParagraphChange`.
    void changeParagraphHorizontalAlignment(std::int64_t alignment, float lineHeight);

    // ---- Commands of one change each ----

    /// Sets the foreground colour.
    void setTextColor(const Color& color);
    /// Sets the background colour; the clear colour removes it.
    void setTextBackgroundColor(const Color& color);
    /// Converts fonts to a family.
    void setTextFontFamily(StringView family);
    /// Converts fonts to a face.
    void setTextFontFace(StringView faceName);
    /// Converts fonts to a size in points.
    void setTextFontSize(float size);
    /// Makes fonts bold, or takes that away.
    void setTextBold(bool bold);
    /// Makes fonts italic, or takes that away.
    void setTextItalic(bool italic);
    /// Sets the underline style.
    void setTextUnderline(std::int32_t style);
    /// Sets the strikethrough style.
    void setTextStrikethrough(std::int32_t style);
    /// Raises text: 1; lowers it: -1; puts it on the baseline: 0.
    void setTextSuperscript(std::int32_t superscript);
    /// Lowers text, or puts it on the baseline.
    void setTextSubscript(bool subscript);
    /// Raises text. The sender of the command does not count.
    void superscript(const void* sender = nullptr);
    /// Lowers text. The sender of the command does not count.
    void subscript(const void* sender = nullptr);
    /// Sets the alignment, a number of `TextAlignment`.
    void setTextHorizontalAlignment(std::int64_t alignment);
    /// Sets the least and the greatest line height.
    void setTextExactLineHeight(float lineHeight);
    /// Writes the selected letters in upper case (1), in lower case (2), or with
    /// the first letter of each word in upper case and the others in lower case
    /// (4), and keeps the attributes of each character. Nothing happens for
    /// another code.
    void setTextCapitalization(std::int64_t capitalization);

    // ---- State, for an inspector ----

    /// The attributes at the start of the selection, or the typing attributes
    /// when the selection is empty or starts at the end of the text.
    [[nodiscard]] TextAttributes activeTextAttributes() const;
    /// Whether the active font is bold.
    [[nodiscard]] bool isTextBold() const;
    /// Whether the active font is italic.
    [[nodiscard]] bool isTextItalic() const;
    /// Whether the active underline style is not 0.
    [[nodiscard]] bool isTextUnderline() const;
    /// Whether the active strikethrough style is not 0.
    [[nodiscard]] bool isTextStrikethrough() const;
    /// Whether the active text stands above the baseline.
    [[nodiscard]] bool isTextSuperscript() const;
    /// Whether the active text stands below the baseline.
    [[nodiscard]] bool isTextSubscript() const;
    /// The active alignment, a number of `TextAlignment`; natural when there is
    /// no paragraph style.
    [[nodiscard]] std::int64_t textHorizontalAlignment() const;
    /// How the letters of the first selected range are written: 1 upper case,
    /// else 2 lower case, else 4 capitalized, else 0. Text without letters is
    /// upper case; an empty selection gives 0.
    [[nodiscard]] std::int64_t textCapitalization() const;
    /// `RichText::canApplyTrait` of the first selected range; at an insertion
    /// point or at the end of the text, whether the typing font can have it.
    [[nodiscard]] bool canApplyTrait(std::uint32_t trait) const;
    /// `RichText::doesHaveTrait` of the first selected range; at an insertion
    /// point or at the end of the text, whether the typing font has it and its
    /// family can have it.
    [[nodiscard]] bool doesHaveTrait(std::uint32_t trait) const;
    /// Whether natural alignment is to the right in this process: its locale's
    /// script runs from right to left. Decided once.
    [[nodiscard]] static bool actualNaturalTextAlignment();

private:
    /// What a change may change, and what undoing it brings back.
    struct State {
        RichText storage;
        std::vector<Range> selection;
        TextAttributes typing;
    };

    std::shared_ptr<const State> stateBeforeChange();
    void registerUndo(const std::shared_ptr<const State>& before, StringView actionName);
    void restore(const State& before, StringView actionName);
    void type(const std::vector<Range>& ranges, const RichText& string);
    void replace(const std::vector<Range>& ranges, const RichText& string);
    void changeTyping(const CharacterChange& change);
    void noteStorageChange();
    void noteTextChange();
    [[nodiscard]] TextAttributes attributesForTyping() const;
    [[nodiscard]] bool isAtInsertionPoint() const;

    State state_;
    std::shared_ptr<UndoManager> undoManager_;
    RichTextEditorDelegate* delegate_ = nullptr;
    // What undoing the typing that goes on brings back; gone when its step is.
    std::weak_ptr<const State> beforeTyping_;
    std::size_t typingEnd_ = 0;
    bool isFieldEditor_ = false;
    bool isEnabled_ = true;
};

}  // namespace QZCore
