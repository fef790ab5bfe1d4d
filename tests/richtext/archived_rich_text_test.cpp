#include "QZCore/richtext/archived_rich_text.h"

#include <limits>

#include "QZCore/color/named_colors.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/model/archive.h"
#include "QZCore/model/attributed_object.h"
#include "QZCore/richtext/rich_text.h"
#include "support/font_scope.h"
#include "support/printing.h"
#include "support/random_rich_text.h"
#include "support/small_stack.h"

namespace QZCore {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

ArchiveClasses classes() { return {.objects = {archivedRichText()}}; }

Value thereAndBack(const Value& value, ArchiveCoding coding = ArchiveCoding::Keyed,
                   const ArchiveClasses& allowed = classes()) {
    const PropertyListData archive = archivedData(value, allowed, coding);
    CAPTURE(archive.error);
    REQUIRE(archive.data.has_value());
    const PropertyListResult back = unarchivedValue(*archive.data, allowed);
    CAPTURE(back.error);
    REQUIRE(back.error.empty());
    CHECK(archivedData(back.value, allowed, coding).data == archive.data);
    return back.value;
}

/// Attributes with everything that they can hold.
TextAttributes everything() {
    const auto image = std::make_shared<const Image>(
        Image{.data = {0, 255, 10}, .mediaType = u"image/png", .width = 3, .height = kNan});
    const ParagraphStyle style{.alignment = TextAlignment::Center,
                               .minimumLineHeight = 1,
                               .maximumLineHeight = 2,
                               .lineHeightMultiple = 3,
                               .lineSpacing = 4,
                               .paragraphSpacingBefore = 5,
                               .paragraphSpacing = 6,
                               .headIndent = 7,
                               .firstLineHeadIndent = 8,
                               .tailIndent = -9,
                               .baseWritingDirection = WritingDirection::RightToLeft,
                               .tabStops = {{TextAlignment::Right, 10}, {}},
                               .textLists = {{u"{disc}"}, {u"{decimal}."}},
                               .textBlocks = {{1, 2, Color::whiteColor()}, {}}};
    return {
        {NSFontAttributeName, Value::boxed(Font{.familyName = u"Family",
                                                .faceName = u"Face",
                                                .pointSize = 0.1,
                                                .traits = kFontBold,
                                                .weight = 9})},
        {NSForegroundColorAttributeName, Value::boxed(Color::textColor())},
        {NSBackgroundColorAttributeName, Value::boxed(Color::clearColor())},
        {NSUnderlineColorAttributeName, Value::boxed(Color::colorWithDeviceRed(0.1, 2, -3, 0.5))},
        {NSUnderlineStyleAttributeName, 1},
        {NSStrikethroughStyleAttributeName, 1},
        {NSBaselineOffsetAttributeName, -1.5},
        {NSSuperscriptAttributeName, -1},
        {NSParagraphStyleAttributeName, Value::boxed(style)},
        {NSLinkAttributeName, URL{u"https://example.org/"}},
        {NSAttachmentAttributeName, Value::boxed(TextAttachment{.image = image,
                                                                .width = 5,
                                                                .height = 6,
                                                                .alternativeText = u"two",
                                                                .source = u"a.png"})},
        {NSWritingDirectionAttributeName, Array{0, 1}},
        {u"custom", Array{Value::boxed(RichText(u"inner")), kNan,
                          Value::boxed(Color::colorWithCalibratedWhite(0.3, 1))}}};
}

}  // namespace

TEST_CASE("rich texts come back with all attributes, also in attributed objects") {
    const testing::MadeUpFonts fonts;
    RichText full(u"a\uFFFC", everything());
    full.appendString(String{0xD800, 0, u'\n'});
    const auto object = std::make_shared<QZAttributedObject>();
    object->setAttribute(Array{Value::boxed(full)}, u"texts");
    for (const ArchiveCoding coding : {ArchiveCoding::Keyed, ArchiveCoding::Sequential}) {
        const Value value = thereAndBack(Value::boxed(full), coding);
        const auto* back = value.boxedValue<RichText>();
        REQUIRE(back != nullptr);
        CHECK(back->string() == full.string());
        CHECK(back->numberOfRuns() == 2);
        const Value held = thereAndBack(Value(object), coding, object->archivableClasses());
        CHECK_FALSE(objectIn<QZAttributedObject>(held)->attributes().empty());
    }
    testing::RandomRichTexts random(5);
    for (int i = 0; i < 300; ++i) {
        const Value text = Value::boxed(random.next());
        REQUIRE(thereAndBack(text) == text);
    }
}

TEST_CASE("colours come back to the bit and as the fixed colours that they were") {
    for (const Color& color :
         {Color::clearColor(), Color::whiteColor(), Color::blackColor(), Color::textColor(),
          Color::controlBlueColor(), *Color::sharedNamedColors().find(u"systemPink"),
          Color::colorWithCalibratedRed(0, 0, 0, 0), Color::colorWithCalibratedWhite(1, 1),
          Color::colorWithDeviceRed(0.1, -0.0, 1e300, 7)}) {
        CAPTURE(color.stringForColor());
        const RichText text(u"a", {{NSForegroundColorAttributeName, Value::boxed(color)}});
        const Value back = thereAndBack(Value::boxed(text));
        CHECK(back.boxedValue<RichText>()->attributesAtIndex(0).foregroundColor()->isIdenticalTo(
            color));
    }
}

TEST_CASE("a text with many runs, or in many places, is archived once and in linear time") {
    const Value font = Value::boxed(Font{});
    RichText text;
    for (int i = 0; i < 5'000; ++i) {
        text.appendAttributedString(
            RichText(u"a", {{NSFontAttributeName, font}, {NSLinkAttributeName, i}}));
    }
    const Value shared = Value::boxed(text);
    const Value back = thereAndBack(Array(1'000, shared));
    CHECK(back == Value(Array(1'000, shared)));
    CHECK(back.array()->front().isIdentical(back.array()->back()));
}

TEST_CASE("texts in attributes of texts, 20,000 deep, are archived and released") {
    testing::onSmallStack([] {
        Value text = Value::boxed(RichText(u"a"));
        for (int i = 0; i < 20'000; ++i) {
            text = Value::boxed(RichText(u"a", {{u"inner", i % 2 == 0 ? text : Array{text}}}));
        }
        text = thereAndBack(text);
    });
}

TEST_CASE("texts whose runs do not fit them are refused") {
    const RichText text(u"abc", {{NSUnderlineStyleAttributeName, 1}});
    const Data bytes = archivedData(Value::boxed(text), classes()).data.value();
    const Value archive = readPropertyList(bytes).value;
    const Array& objects = *archive.dictionary()->objectForKey(u"objects").array();
    REQUIRE(objects[3] == Value(3));
    for (const Value& length : {Value(2), Value(4), Value(-1), Value(0), Value(1e300), Value(u"3"),
                                Value(std::numeric_limits<std::uint64_t>::max())}) {
        CAPTURE(length);
        Array changed = objects;
        changed[3] = length;
        Dictionary parts = *archive.dictionary();
        parts.setObject(changed, u"objects");
        const auto result = unarchivedValue(writePropertyList(parts).data.value(), classes());
        CHECK(result.error.empty() == (length == Value(u"3")));
    }
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        for (const char byte : {'0', '2', '9', '<'}) {
            Data changed = bytes;
            changed[i] = static_cast<std::uint8_t>(byte);
            const auto result = unarchivedValue(changed, classes());
            const auto* read = result.value.boxedValue<RichText>();
            REQUIRE((read == nullptr || read->RTF().size() > 0));
        }
    }
}

TEST_CASE("parts of rich texts are allowed in them alone") {
    const Value color = Value::boxed(Color());
    CHECK_FALSE(archivedData(color, classes()).data.has_value());
    CHECK_FALSE(archivedData(Array{color}, classes()).data.has_value());
    const ArchiveClasses both{.objects = archivedRichText().parts.front().parts};
    const Data bytes = archivedData(color, both).data.value();
    CHECK(unarchivedValue(bytes, both).value == color);
    CHECK_FALSE(unarchivedValue(bytes, classes()).error.empty());
}

}  // namespace QZCore
