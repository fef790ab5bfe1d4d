#include "QZCore/richtext/editor.h"

#include "QZCore/model/undo_manager.h"
#include "support/color_printing.h"
#include "support/font_scope.h"
#include "support/preference_setting.h"
#include "support/printing.h"
#include "support/random_rich_text.h"

namespace QZCore {
namespace {

Font font(StringView face, double size = 12) {
    return *FontManager::shared().fontNamed(face, size);
}

TextAttributes inFont(StringView face, double size = 12) {
    return {{NSFontAttributeName, Value::boxed(font(face, size))}};
}

/// The font of text in `before` after one change.
Font changed(const TextAttributes& before, const CharacterChange& change) {
    RichText text(u"a", before);
    changeCharacters(text, {0, 1}, change);
    const TextAttributes typing = typingAttributesAfter(before, change);
    CHECK(text.attributesAtIndex(0) == typing);  // typing goes the same way
    return *typing.font();
}

/// Counts what it is told.
struct Notices final : RichTextEditorDelegate {
    void textDidChange(RichTextEditor& /*editor*/) override { ++text; }
    void textStorageDidProcessEditing(RichTextEditor& /*editor*/) override { ++storage; }
    void selectedFontDidChange(RichTextEditor& /*editor*/, const Font& shown,
                               bool isMultiple) override {
        lastFont = shown.faceName;
        lastFontSize = shown.pointSize;
        CHECK_FALSE(isMultiple);
    }

    int text = 0;
    int storage = 0;
    String lastFont;
    double lastFontSize = 0;
};

}  // namespace

TEST_CASE("fonts are converted to a face or else a family, then to a size and a trait") {
    const testing::MadeUpFonts fonts;
    struct Row {
        const char* why;
        StringView before;
        CharacterChange change;
        Font after;
    };
    const Row rows[] = {
        {"a face wins over a family",
         u"Sans-Regular",
         {.fontFamily = u"Serif", .faceName = u"Mono-Bold"},
         font(u"Mono-Bold")},
        {"a family keeps the traits",
         u"Sans-BoldItalic",
         {.fontFamily = u"Serif"},
         font(u"Serif-BoldItalic")},
        {"size and trait",
         u"Sans-Bold",
         {.fontSize = 9.5F, .trait = kFontItalic},
         font(u"Sans-BoldItalic", 9.5)},
        {"no size", u"Sans-Bold", {.fontSize = -1, .trait = kFontUnitalic}, font(u"Sans-Bold")},
        {"unbold", u"Sans-Bold", {.trait = kFontUnbold}, font(u"Sans-Regular")},
        {"unknown names", u"Sans-Bold", {.fontFamily = u"Nope"}, font(u"Sans-Bold")},
        {"superscript", u"Sans-Bold", {.superscript = 1}, font(u"Sans-Bold", 9)},
        {"back to the baseline", u"Sans-Bold", {.superscript = 0}, font(u"Sans-Bold", 16)},
        {"after the size",
         u"Sans-Bold",
         {.fontSize = 13, .superscript = -1},
         font(u"Sans-Bold", 9)},
        {"another level changes the size alone",
         u"Sans-Bold",
         {.superscript = 7},
         font(u"Sans-Bold", 9)},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(changed(inFont(row.before), row.change) == row.after);
    }
    CHECK(changed({}, {.trait = kFontBold}) == font(u"Sans-Bold"));
    const testing::PreferenceSetting percentage(u"SuperSubscript Percentage", 0.5);
    CHECK(changed(inFont(u"Mono-Bold", 9), {.superscript = 1}) == font(u"Mono-Bold", 4));
}

TEST_CASE("a face that stays bold becomes lighter by one step more") {
    const testing::MadeUpFonts fonts(
        makeInMemoryFontCatalog({{.name = u"F",
                                  .members = {{u"F-Semi", {}, u"Semi", 2, 8},
                                              {u"F-Bold", {}, u"Bold", 2, 9},
                                              {u"F-Black", {}, u"Black", 2, 12}}}}));
    CHECK(changed(inFont(u"F-Black"), {.trait = kFontUnbold}).faceName == u"F-Bold");
    CHECK(changed(inFont(u"F-Semi"), {.trait = kFontUnbold}).faceName == u"F-Semi");
}

TEST_CASE("a change of characters sets what is given over the range and nothing else") {
    const testing::MadeUpFonts fonts;
    const Color red = *Color::colorForString(u"red");
    RichText text(u"ab", inFont(u"Sans-Regular", 10));
    text.appendAttributedString(RichText(u"cd", inFont(u"Mono-Bold", 20)));
    const RichText before = text;
    changeCharacters(text, {4, 9}, {.color = red});
    changeCharacters(text, {1, 2}, {});
    CHECK(text == before);

    changeCharacters(
        text, {1, 2},
        {.color = red, .underline = 2, .strikethrough = 0, .superscript = -1, .background = red});
    const TextAttributes lowered =
        inFont(u"Sans-Regular", 7)
            .mergedWith({{NSForegroundColorAttributeName, Value::boxed(red)},
                         {NSBackgroundColorAttributeName, Value::boxed(red)},
                         {NSUnderlineStyleAttributeName, 2},
                         {NSStrikethroughStyleAttributeName, 0},
                         {NSSuperscriptAttributeName, -1}});
    CHECK(text.runAtIndex(1).attributes == lowered);
    CHECK(text.runAtIndex(1).range == Range{1, 2});  // both fonts became the first
    CHECK(text.attributesAtIndex(3) == inFont(u"Mono-Bold", 20));

    text.addAttribute(NSBaselineOffsetAttributeName, 3.5, {1, 2});
    changeCharacters(text, {1, 2}, {.superscript = 0, .background = Color::clearColor()});
    const TextAttributes after = text.attributesAtIndex(1);
    for (const StringView name : {NSBaselineOffsetAttributeName, NSSuperscriptAttributeName,
                                  NSBackgroundColorAttributeName}) {
        CHECK(after.find(name) == nullptr);
    }
    CHECK(after.font()->pointSize == 10);  // ceil(7 / 0.75)
}

TEST_CASE(
    "empty ranges change the typing attributes, and nowhere is skipped when it is not empty") {
    const testing::MadeUpFonts fonts;
    RichText text(u"ab", inFont(u"Sans-Regular"));
    TextAttributes typing;
    changeCharacters(text, {{kNotFound, 3}, {1, 1}}, typing, {.trait = kFontBold});
    CHECK(text.attributesAtIndex(1) == inFont(u"Sans-Bold"));
    CHECK(typing == TextAttributes());
    changeCharacters(text, {kNotFoundRange}, typing, {.underline = 1});
    CHECK(typing == TextAttributes{{NSUnderlineStyleAttributeName, 1}});
    const RichText before = text;
    changeParagraphs(text, {kNotFound, 3}, typing, {.alignment = 1});
    CHECK(text == before);
    changeParagraphs(text, {0, 1}, typing, {.alignment = 9, .lineHeight = 20});
    const ParagraphStyle* style = text.attributesAtIndex(1).paragraphStyle();
    REQUIRE(style != nullptr);  // the whole paragraph takes it
    CHECK(*style == ParagraphStyle{.minimumLineHeight = 20, .maximumLineHeight = 20});
}

TEST_CASE("an editor formats its selection, or what is typed next, and tells what it did") {
    const testing::MadeUpFonts fonts;
    Notices notices;
    RichTextEditor editor(RichText(u"one two\nthree", inFont(u"Sans-Regular")));
    editor.setDelegate(&notices);
    CHECK(editor.selectedRange() == Range{13, 0});
    editor.setTextBold(true);
    CHECK(notices.lastFont == u"Sans-Bold");
    CHECK(editor.textStorage().numberOfRuns() == 1);
    CHECK(editor.isTextBold());
    editor.setTextSuperscript(1);
    CHECK(notices.lastFontSize == 12);  // that of text on the baseline
    CHECK(editor.typingAttributes().font()->pointSize == 9);
    editor.setTextSuperscript(0);
    editor.insertText(u"!");
    CHECK(editor.textStorage().attributesAtIndex(13) == inFont(u"Sans-Bold"));
    CHECK(notices.text == 4);
    CHECK(notices.storage == 1);

    editor.setSelectedRanges({{8, 3}, {0, 2}, {1, 2}, {5, 0}, {90, 4}});
    CHECK(editor.selectedRanges() == std::vector<Range>{{0, 3}, {8, 3}});
    editor.setTextItalic(true);
    CHECK(notices.text == 6);  // one for each range
    CHECK(editor.isTextItalic());
    CHECK_FALSE(editor.isTextBold());
    CHECK(editor.canApplyTrait(kFontBold));
    CHECK(editor.doesHaveTrait(kFontItalic));
    editor.setSelectedRange({1, 0});
    editor.setTextHorizontalAlignment(2);
    editor.setTextExactLineHeight(18);
    CHECK(editor.textStorage().attributesAtIndex(7).paragraphStyle()->alignment ==
          TextAlignment::Center);
    CHECK(editor.textStorage().attributesAtIndex(8).paragraphStyle() == nullptr);
    CHECK(notices.text == 6);  // the storage tells of paragraphs

    const RichText before = editor.textStorage();
    editor.setFieldEditor(true);
    editor.setTextBold(true);
    editor.setFieldEditor(false);
    editor.setEnabled(false);
    editor.setTextBold(true);
    editor.setTextCapitalization(1);
    editor.insertText(u"x");
    editor.deleteBackward();
    CHECK(editor.textStorage() == before);
    CHECK_FALSE(editor.isEnabled());
    CHECK(editor.textColor() != RichTextEditor().textColor());
}

TEST_CASE("what is typed takes the attributes before it in its paragraph") {
    const testing::MadeUpFonts fonts;
    RichText text(u"ab\n", inFont(u"Sans-Bold"));
    text.appendAttributedString(RichText(u"cd", inFont(u"Mono-Bold")));
    RichTextEditor editor(text);
    const auto typingAt = [&](Range range) {
        editor.setSelectedRange(range);
        return editor.typingAttributes().font()->familyName;
    };
    CHECK(typingAt({0, 0}) == u"Sans");
    CHECK(typingAt({3, 0}) == u"Mono");
    CHECK(typingAt({4, 0}) == u"Mono");
    CHECK(typingAt({2, 2}) == u"Sans");
    editor.setSelectedRanges({{1, 1}, {4, 1}});
    editor.insertText(u"xyz");
    CHECK(editor.textStorage().string() == u"axyz\nc");
    CHECK(editor.selectedRange() == Range{4, 0});
    editor.setSelectedRange({1, 2});
    editor.insertAttributedText(editor.textStorage());
    CHECK(editor.textStorage().string() == u"aaxyz\ncz\nc");
    CHECK(editor.selectedRange() == Range{7, 0});
    editor.setTextStorage(RichText(u"e\u0301\U0001F1E9\U0001F1EA"));
    editor.deleteBackward();
    CHECK(editor.textStorage().string() == u"e\u0301");
    editor.deleteBackward();
    editor.insertText(u"\r\n");
    editor.deleteBackward();
    CHECK(editor.textStorage().empty());
}

TEST_CASE("paragraphs that are joined anywhere take one style") {
    const auto paragraph = [](StringView string, TextAlignment alignment) {
        const ParagraphStyle style{.alignment = alignment};
        return RichText(string, {{NSParagraphStyleAttributeName, Value::boxed(style)}});
    };
    RichText text = paragraph(u"ab\n", TextAlignment::Left);
    text.appendAttributedString(paragraph(u"cd\n", TextAlignment::Right));
    text.appendAttributedString(paragraph(u"ef", TextAlignment::Center));
    RichTextEditor editor(text);
    editor.setSelectedRanges({{0, 1}, {5, 1}});
    editor.deleteBackward();
    CHECK(editor.textStorage().string() == u"b\ncdef");
    CHECK(editor.textStorage().attributeAtIndex(NSParagraphStyleAttributeName, 5).range ==
          Range{2, 4});
}

TEST_CASE("letters are told and written in another case, each with its attributes") {
    struct Row {
        StringView text;
        std::int64_t capitalization;
        StringView lower;
        StringView capitalized;
    };
    const Row rows[] = {
        {u"ABC", 1, u"abc", u"Abc"},
        {u"abc", 2, u"abc", u"Abc"},
        {u"Abc Def", 4, u"abc def", u"Abc Def"},
        {u"aBc", 0, u"abc", u"Abc"},
        {u"12 !", 1, u"12 !", u"12 !"},
        {u"", 0, u"", u""},
        {u"STRASSE", 1, u"strasse", u"Strasse"},
        {u"\u0130x", 4, u"i\u0307x", u"\u0130x"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        RichTextEditor editor((RichText(row.text)));
        editor.setSelectedRange({0, row.text.size()});
        CHECK(editor.textCapitalization() == row.capitalization);
        editor.setTextCapitalization(4);
        CHECK(editor.textStorage().string() == row.capitalized);
        editor.setTextCapitalization(2);
        CHECK(editor.textStorage().string() == row.lower);
        editor.setTextCapitalization(3);
        CHECK(editor.textStorage().string() == row.lower);
    }
    RichText text(u"a\u00DF", {{u"mark", 1}});
    text.appendAttributedString(RichText(u"b c", {{u"mark", 2}}));
    RichTextEditor editor(text);
    editor.setSelectedRanges({{1, 2}, {4, 1}});
    editor.setTextCapitalization(1);
    RichText expected(u"aSS", {{u"mark", 1}});
    expected.appendAttributedString(RichText(u"B C", {{u"mark", 2}}));
    CHECK(editor.textStorage() == expected);
    CHECK(editor.selectedRanges() == std::vector<Range>{{1, 3}, {5, 1}});
}

TEST_CASE("the state of lines, levels and alignment is that of the active attributes") {
    RichTextEditor editor;
    CHECK(editor.textHorizontalAlignment() == 4);
    CHECK_FALSE(editor.isTextUnderline());
    CHECK_FALSE(editor.isTextSuperscript());
    editor.setTypingAttributes({{NSUnderlineStyleAttributeName, 2},
                                {NSStrikethroughStyleAttributeName, -1},
                                {NSBaselineOffsetAttributeName, -0.5},
                                {NSSuperscriptAttributeName, 1}});
    CHECK(editor.isTextUnderline());
    CHECK(editor.isTextStrikethrough());
    CHECK(editor.isTextSuperscript());
    CHECK(editor.isTextSubscript());
    CHECK_FALSE(editor.canApplyTrait(kFontBold));
    CHECK_FALSE(editor.doesHaveTrait(kFontBold));
}

TEST_CASE("undoing gives back the very same text, and redoing the changed one") {
    const testing::MadeUpFonts fonts;
    testing::RandomRichTexts texts(11);
    const auto manager = std::make_shared<UndoManager>();
    RichTextEditor editor;
    editor.setUndoManager(manager);
    std::vector<RichText> history{editor.textStorage()};
    for (int step = 0; step < 300; ++step) {
        const std::size_t length = editor.textStorage().length();
        editor.setSelectedRange({texts.below(length + 1), 1 + texts.below(9)});
        switch (texts.below(6)) {
            case 0:
                editor.insertAttributedText(texts.next());
                break;
            case 1:
                editor.deleteBackward();
                break;
            case 2:
                editor.setTextBold(texts.below(2) == 0);
                break;
            case 3:
                editor.setTextHorizontalAlignment(1);
                break;
            case 4:
                editor.setTextCapitalization(1);
                break;
            default:
                editor.insertText(u"typed");
                break;
        }
        if (!(history.back() == editor.textStorage())) history.push_back(editor.textStorage());
    }
    REQUIRE(history.size() > 150);
    for (std::size_t i = history.size(); i-- > 0;) {
        while (manager->canUndo() && !(editor.textStorage() == history[i])) manager->undo();
        REQUIRE(editor.textStorage() == history[i]);
    }
    for (const RichText& text : history) {
        while (manager->canRedo() && !(editor.textStorage() == text)) manager->redo();
        REQUIRE(editor.textStorage() == text);
    }
}

TEST_CASE("a command that finds nothing selected is no step") {
    const auto manager = std::make_shared<UndoManager>();
    Notices notices;
    RichTextEditor editor(RichText(u"ab"));
    editor.setUndoManager(manager);
    editor.setDelegate(&notices);
    editor.setTextCapitalization(1);
    CHECK_FALSE(manager->canUndo());
    CHECK(notices.text == 0);
}

TEST_CASE("typing that goes on is one step, until the steps are forgotten") {
    const auto manager = std::make_shared<UndoManager>();
    RichTextEditor editor(RichText(u"."));
    editor.setUndoManager(manager);
    for (const StringView letter : {u"a", u"b"}) editor.insertText(letter);
    editor.deleteBackward();
    CHECK(manager->undoActionName() == u"Typing");
    manager->undo();
    CHECK(editor.textStorage().string() == u".");
    manager->redo();
    editor.insertText(u"c");
    manager->removeAllActions();
    editor.insertText(u"d");
    manager->undo();
    CHECK(editor.textStorage().string() == u".ac");
}

}  // namespace QZCore
