// Editors: any session gives what the plainest possible editor gives, and can be
// undone to its start and redone to its end.
#include <algorithm>

#include "QZCore/model/undo_manager.h"
#include "QZCore/platform/fonts.h"
#include "QZCore/richtext/editor.h"
#include "edit_script.h"
#include "require.h"
#include "support/rich_text_twin.h"

using namespace QZCore;
using testing::RichTextTwin;

namespace {

constexpr std::size_t kLongest = 500;
constexpr int kMostSteps = 200;

/// An editor that does everything the slow and obvious way. Its text has no
/// fonts.
struct PlainEditor {
    RichTextTwin text;
    std::vector<Range> selection{{0, 0}};
    TextAttributes typing;

    [[nodiscard]] bool startsParagraph(std::size_t at) const {
        if (at == 0) return true;
        const char16_t before = text.text[at - 1];
        const bool isInside = at < text.text.size() && text.text[at] == u'\n';
        return before == u'\n' || before == 0x2029 || (before == u'\r' && !isInside);
    }

    /// Paragraphs have the style of their first unit, and attachments stand on
    /// their own unit only.
    void fix() {
        Value style;
        for (std::size_t i = 0; i < text.text.size(); ++i) {
            TextAttributes& own = text.attributes[i];
            if (startsParagraph(i)) style = own.objectForKey(NSParagraphStyleAttributeName);
            own = own.withAttribute(NSParagraphStyleAttributeName, style);
            if (text.text[i] != kAttachmentCharacter) {
                own = own.withoutAttribute(NSAttachmentAttributeName);
            }
        }
    }

    void select(const std::vector<Range>& ranges) {
        const std::size_t length = text.text.size();
        std::vector<bool> selected(length + 1, false);
        std::size_t first = length;
        for (const Range& range : ranges) {
            const Range inside = clampedRange(range, length);
            first = std::min(first, inside.location);
            for (std::size_t i = inside.location; i < inside.end(); ++i) selected[i] = true;
        }
        selection.clear();
        for (std::size_t i = 0; i < length; ++i) {
            if (!selected[i]) continue;
            if (i == 0 || !selected[i - 1]) selection.push_back({i, 0});
            ++selection.back().length;
        }
        if (selection.empty()) selection = {{first, 0}};
        if (length > 0) typing = attributesForTyping();
    }

    [[nodiscard]] TextAttributes attributesForTyping() const {
        const std::size_t at = selection.front().location;
        const bool takesBefore = selection.front().length == 0 && !startsParagraph(at);
        return text.attributes[std::min(at - (takesBefore ? 1 : 0), text.text.size() - 1)];
    }

    void type(const RichText& string) {
        for (std::size_t i = selection.size(); i-- > 1;) text.replace(selection[i], u"");
        text.replace(selection.front(), string);
        selection = {{selection.front().location + string.length(), 0}};
        if (!string.empty()) typing = string.attributesAtIndex(string.length() - 1);
        fix();
    }

    /// Deletes a character of one unit, or a carriage return with its line feed.
    void deleteBackward() {
        const std::size_t at = selection.front().location;
        if (selection.front().length == 0) {
            if (at == 0) return;
            const bool isPair = at > 1 && text.text.substr(at - 2, 2) == u"\r\n";
            selection = {{at - (isPair ? 2 : 1), isPair ? 2U : 1U}};
        }
        type(RichText());
    }

    void changeCharacters(const CharacterChange& change) {
        if (selection.front().length == 0) {
            typing = typingAttributesAfter(typing, change);
            return;
        }
        for (const Range& range : selection) {
            text.change(range, [&](const auto& old) { return typingAttributesAfter(old, change); });
        }
        fix();
    }

    void changeParagraphs(const ParagraphChange& change) {
        std::size_t start = selection.front().location;
        std::size_t end = std::max(selection.back().end(), start + 1);
        while (!startsParagraph(start)) --start;
        while (end < text.text.size() && !startsParagraph(end)) ++end;
        end = std::min(end, text.text.size());
        if (start == end) typing = typingAttributesAfter(typing, change);
        text.change({start, end - start},
                    [&](const auto& old) { return typingAttributesAfter(old, change); });
        fix();
    }

    void writeInCase(std::int64_t code) {
        for (const Range& range : selection) {
            for (std::size_t i = range.location; i < range.end(); ++i) {
                char16_t& unit = text.text[i];
                if (code == 1 && unit >= u'a' && unit <= u'z') unit -= 32;
                if (code == 2 && unit >= u'A' && unit <= u'Z') unit += 32;
            }
        }
    }
};

void insert(EditScript& script, RichTextEditor& editor, PlainEditor& plain) {
    const String string = script.text(kLongest);
    switch (script.below(4)) {
        case 0: {
            const RichText own = editor.textStorage();
            editor.insertAttributedText(editor.textStorage());
            return plain.type(own);
        }
        case 1: {
            const RichText styled(string, script.attributes());
            editor.insertAttributedText(styled);
            return plain.type(styled);
        }
        default: {
            const Range first = plain.selection.front();
            const bool isTyping = first.length == 0;
            plain.type(
                RichText(string, isTyping ? plain.typing : plain.text.attributes[first.location]));
            return editor.insertText(string);
        }
    }
}

void format(EditScript& script, RichTextEditor& editor, PlainEditor& plain) {
    const auto number = static_cast<std::int32_t>(script.below(5)) - 1;
    switch (script.below(3)) {
        case 0: {
            const CharacterChange change{
                .underline = number,
                .background = number == 0 ? Color::clearColor() : Color::blackColor()};
            editor.changeFontFamily(change);
            return plain.changeCharacters(change);
        }
        case 1:
            editor.changeParagraphHorizontalAlignment(number * 3, 12);
            return plain.changeParagraphs({number * 3, 12});
        default:
            editor.setTextCapitalization(number % 3);
            return plain.writeInCase(number % 3);
    }
}

void select(EditScript& script, RichTextEditor& editor, PlainEditor& plain) {
    std::vector<Range> ranges;
    for (std::size_t i = script.below(5); i > 0; --i) {
        ranges.push_back(script.range(plain.text.text.size()));
    }
    editor.setSelectedRanges(ranges);
    plain.select(ranges);
}

void step(EditScript& script, RichTextEditor& editor, PlainEditor& plain) {
    switch (script.below(8)) {
        case 0:
            editor.deleteBackward();
            return plain.deleteBackward();
        case 1:
        case 2:
            return select(script, editor, plain);
        case 3:
        case 4:
            return format(script, editor, plain);
        default:
            return insert(script, editor, plain);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool prepared = (setSharedFontCatalog(makeInMemoryFontCatalog()), true);
    require(prepared);
    const auto manager = std::make_shared<UndoManager>();
    EditScript script(data, size);
    RichTextEditor editor;
    PlainEditor plain;
    editor.setUndoManager(manager);
    for (int i = 0; i < kMostSteps && !script.isAtEnd(); ++i) {
        if (plain.text.text.size() > kLongest) break;
        step(script, editor, plain);
        require(editor.selectedRanges() == plain.selection);
        require(editor.typingAttributes() == plain.typing);
        require(editor.textStorage().string() == plain.text.text);
    }
    require(plain.text.matches(editor.textStorage()));
    const RichText last = editor.textStorage();
    while (manager->canUndo()) manager->undo();
    require(editor.textStorage().empty());
    while (manager->canRedo()) manager->redo();
    require(editor.textStorage() == last);
    return 0;
}
