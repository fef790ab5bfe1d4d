#include "QZCore/richtext/editor.h"

#include <algorithm>
#include <utility>

#include "QZCore/model/undo_manager.h"
#include "color/system_colors.h"
#include "platform/composed_characters.h"
#include "richtext/paragraph_fixing.h"

namespace QZCore {
namespace {

/// `ranges` in order, joined where they touch. Insertion points count only when
/// nothing is selected, and then only the first.
std::vector<Range> selectionOf(std::vector<Range> ranges, std::size_t length) {
    for (Range& range : ranges) range = clampedRange(range, length);
    std::ranges::sort(ranges, {}, &Range::location);
    std::vector<Range> selection;
    for (const Range& range : ranges) {
        if (range.length == 0) continue;
        if (!selection.empty() && range.location <= selection.back().end()) {
            Range& last = selection.back();
            last.length = std::max(last.end(), range.end()) - last.location;
        } else {
            selection.push_back(range);
        }
    }
    if (selection.empty()) {
        selection.push_back(ranges.empty() ? Range{length, 0} : ranges.front());
    }
    return selection;
}

bool startsParagraph(const RichText& text, std::size_t position) {
    return position == 0 || paragraphEndsBefore(text.string({position - 1, 2}), 1);
}

/// Where the composed character or the line end before `end` starts, which must
/// be above 0.
std::size_t deletedCharacterStart(const RichText& text, std::size_t end) {
    constexpr std::size_t kLongest = 1024;
    const std::size_t from = end > kLongest ? end - kLongest : 0;
    const String before = text.string({from, end - from});
    if (before.ends_with(u"\r\n")) return end - 2;
    std::size_t start = 0;
    for (std::size_t next = 0; next < before.size();) {
        start = next;
        next = composedCharacterEnd(before, start);
    }
    return from + start;
}

}  // namespace

RichTextEditorDelegate::~RichTextEditorDelegate() = default;
void RichTextEditorDelegate::textDidChange(RichTextEditor& /*editor*/) {}
void RichTextEditorDelegate::textStorageDidProcessEditing(RichTextEditor& /*editor*/) {}
void RichTextEditorDelegate::selectedFontDidChange(RichTextEditor& /*editor*/, const Font& /*font*/,
                                                   bool /*isMultiple*/) {}

RichTextEditor::RichTextEditor(RichText text) : state_{std::move(text), {{0, 0}}, {}} {
    setSelectedRange({textStorage().length(), 0});
}

RichTextEditor::~RichTextEditor() { setUndoManager(nullptr); }

// ---- Parts ----

void RichTextEditor::setTextStorage(const RichText& textStorage) {
    registerUndo(stateBeforeChange(), u"");
    state_.storage = textStorage;
    setSelectedRange({textStorage.length(), 0});
    noteStorageChange();
    noteTextChange();
}

void RichTextEditor::setSelectedRanges(std::vector<Range> ranges) {
    state_.selection = selectionOf(std::move(ranges), textStorage().length());
    beforeTyping_.reset();
    if (!textStorage().empty()) state_.typing = attributesForTyping();
}

Color RichTextEditor::textColor() const {
    return isEnabled_ ? kControlTextColor : kDisabledControlTextColor;
}

void RichTextEditor::setUndoManager(std::shared_ptr<UndoManager> undoManager) {
    if (undoManager_ != nullptr) undoManager_->removeAllActionsWithTarget(this);
    undoManager_ = std::move(undoManager);
}

/// Attributes at an insertion point come from its own paragraph.
TextAttributes RichTextEditor::attributesForTyping() const {
    const Range range = selectedRange();
    if (range.length > 0) return textStorage().attributesAtIndex(range.location);
    const std::size_t last = textStorage().length() - 1;
    const bool isInside = !startsParagraph(textStorage(), range.location);
    return textStorage().attributesAtIndex(std::min(range.location - (isInside ? 1 : 0), last));
}

// ---- Undoing ----

/// What undoing the change that is about to be made brings back; null when
/// nobody keeps it. Texts share what they have in common.
std::shared_ptr<const RichTextEditor::State> RichTextEditor::stateBeforeChange() {
    beforeTyping_.reset();
    return undoManager_ == nullptr ? nullptr : std::make_shared<const State>(state_);
}

void RichTextEditor::registerUndo(const std::shared_ptr<const State>& before,
                                  StringView actionName) {
    if (before == nullptr) return;
    undoManager_->registerUndoWithTarget(
        this, [this, before, name = String(actionName)] { restore(*before, name); });
    if (!actionName.empty()) undoManager_->setActionName(actionName);
}

void RichTextEditor::restore(const State& before, StringView actionName) {
    registerUndo(stateBeforeChange(), actionName);
    state_ = before;
    noteStorageChange();
    noteTextChange();
}

void RichTextEditor::noteStorageChange() {
    if (delegate_ != nullptr) delegate_->textStorageDidProcessEditing(*this);
}

void RichTextEditor::noteTextChange() {
    if (delegate_ != nullptr) delegate_->textDidChange(*this);
}

// ---- Typing ----

void RichTextEditor::insertText(StringView string) {
    insertAttributedText(RichText(string, activeTextAttributes()));
}

void RichTextEditor::insertAttributedText(const RichText& string) {
    type(selectedRanges(), RichText(string));  // held here, as it may be the text itself
}

void RichTextEditor::deleteBackward() {
    const Range range = selectedRange();
    if (range.length > 0) return type(selectedRanges(), RichText());
    if (range.location == 0) return;
    const std::size_t start = deletedCharacterStart(textStorage(), range.location);
    type({{start, range.location - start}}, RichText());
}

/// Replaces `ranges` as a step of its own, or as a part of the step before it
/// when that was typed up to the insertion point and can still be undone.
void RichTextEditor::type(const std::vector<Range>& ranges, const RichText& string) {
    if (!isEnabled_) return;
    const bool goesOn = !beforeTyping_.expired() && selectedRange() == Range{typingEnd_, 0};
    const auto before = goesOn ? beforeTyping_.lock() : stateBeforeChange();
    if (!goesOn) registerUndo(before, u"Typing");
    replace(ranges, string);
    beforeTyping_ = before;
    typingEnd_ = selectedRange().location;
    noteStorageChange();
    noteTextChange();
}

/// Replaces the first range and deletes the others.
void RichTextEditor::replace(const std::vector<Range>& ranges, const RichText& string) {
    const RichTextEditing editing(state_.storage);
    for (std::size_t i = ranges.size(); i-- > 1;) {
        state_.storage.deleteCharactersInRange(ranges[i]);
    }
    state_.storage.replaceCharactersInRange(ranges.front(), string);
    const Range inserted{ranges.front().location, string.length()};
    state_.selection = {{inserted.end(), 0}};
    if (!string.empty()) state_.typing = string.attributesAtIndex(string.length() - 1);
}

}  // namespace QZCore
