#include "QZCore/richtext/rtf.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <chrono>

#include "QZCore/foundation/files.h"
#include "support/font_scope.h"
#include "support/labelled_images.h"
#include "support/printing.h"
#include "support/random_rtf_texts.h"
#include "support/small_stack.h"
#include "support/temporary_folder.h"
#include "support/text_rows.h"

namespace QZCore {
namespace {

using testing::LabelledImages;

std::optional<RichText> read(std::string_view document) {
    return richTextFromRTF(bytesOf(document));
}

/// The text of a document whose body has these bytes.
String bodyText(StringView body) {
    std::string document = "{\\rtf1\\ansi\n";
    for (const char16_t byte : body) document += static_cast<char>(byte);
    const auto text = read(document + "}");
    REQUIRE(text.has_value());
    return text->string();
}

ParagraphStyle styleAt(const RichText& text, std::size_t index) {
    const TextAttributes attributes = text.attributesAtIndex(index);
    return attributes.paragraphStyle() == nullptr ? ParagraphStyle() : *attributes.paragraphStyle();
}

std::string repeated(std::string_view piece, std::size_t times) {
    std::string text;
    for (; times > 0; --times) text += piece;
    return text;
}

}  // namespace

TEST_CASE("RTF there and back keeps text and attributes") {
    const testing::MadeUpFonts fonts;
    const LabelledImages images;
    testing::RandomRtfTexts texts(1);
    for (int i = 0; i < 1500; ++i) {
        texts.image = i % 3 == 0 ? LabelledImages::image("PNG:a") : nullptr;
        const RichText text = texts.next();
        const Data document = text.RTF();
        CAPTURE(textOf(document));
        REQUIRE(richTextFromRTF(document) == text);
    }
}

TEST_CASE("RTFD keeps images of all types, and RTFD is written for texts with attachments") {
    const testing::MadeUpFonts fonts;
    const LabelledImages images;
    testing::RandomRtfTexts texts(2);
    for (int i = 0; i < 300; ++i) {
        texts.image = LabelledImages::image(i % 2 == 0 ? "PNG:a" : "GIF:b");
        const RichText text = texts.next();
        const bool hasImages = text.numberOfAttachments() > 0;
        REQUIRE(richTextFromRTFD(text.RTFD()) == text);
        REQUIRE(text.RTForRTFD() == (hasImages ? text.RTFD() : text.RTF()));
    }
}

TEST_CASE("a document is written byte for byte like this") {
    const testing::MadeUpFonts fonts;
    const LabelledImages images;
    const auto font = [](StringView face) {
        return Value::boxed(*FontManager::shared().fontNamed(face, 12));
    };
    RichText text(u"\t\u25CF\tOne\n",
                  {{NSFontAttributeName, font(u"Sans-Bold")},
                   {NSParagraphStyleAttributeName,
                    Value::boxed(ParagraphStyle{
                        .headIndent = 20,
                        .tabStops = {{TextAlignment::Right, 15}, {TextAlignment::Natural, 20}}})}});
    text.appendAttributedString(
        RichText(u"\u00E9\u4E2D", {{NSLinkAttributeName, u"#a"},
                                   {NSForegroundColorAttributeName,
                                    Value::boxed(Color::colorWithCalibratedRed(1, 0, 0, 0.5))}}));
    const TextAttachment image{LabelledImages::image("PNG:"), 16, 8, u"alt", u""};
    text.appendAttributedString(
        RichText({&kAttachmentCharacter, 1}, {{NSAttachmentAttributeName, Value::boxed(image)}}));
    CHECK(textOf(text.RTF()) ==
          "{\\rtf1\\ansi\\ansicpg1252\\uc1\n"
          "{\\fonttbl{\\f0\\fnil\\fcharset0 Sans{\\*\\falt Sans-Bold};}}\n"
          "{\\colortbl;\\red255\\green128\\blue128;}\n"
          "{\\*\\listtable{\\list\\listtemplateid1{\\listlevel\\levelnfc23\\levelnfcn23\\leveljc2"
          "\\leveljcn2\\levelfollow0\\levelstartat1{\\leveltext\\'01\\u9679?;}{\\levelnumbers;}"
          "\\fi-100\\li400}{\\listname ;}\\listid1}\n}{\\*\\listoverridetable"
          "{\\listoverride\\listid1\\listoverridecount0\\ls1}}\n"
          "\\pard\\li400\\fi-100\\ls1\\ilvl0{\\listtext\\f0\\fs24\\b\\u9679?\\tab}"
          "{\\f0\\fs24\\b One\\par\n}"
          "\\pard{\\field{\\*\\fldinst HYPERLINK \"#a\"}{\\fldrslt{\\cf1\\u233\\'e9\\u20013?}}}"
          "{\\pict{\\*\\picprop{\\sp{\\sn wzDescription}{\\sv alt}}}\\pngblip"
          "\\picwgoal320\\pichgoal160\n504e473a}}");
}

TEST_CASE("text of any origin is read") {
    const testing::TextRow<StringView> rows[] = {
        {"line ends are no text", u"a\r\nb\n c", u"ab c"},
        {"escaped braces", u"\\{a\\\\b\\}", u"{a\\b}"},
        {"special characters", u"a\\~b\\_\\emdash\\rquote\\tab c",
         u"a\u00A0b\u2011\u2014\u2019\tc"},
        {"ends of paragraphs, lines and pages", u"a\\par b\\\n\\line\\page", u"a\nb\n\u2028\f"},
        {"western bytes", u"\\'e9\u00E8\\'80", u"\u00E9\u00E8\u20AC"},
        {"another code page", u"\\ansicpg1251\\'cf\\'f0", u"\u041F\u0440"},
        {"a code page of two bytes", u"\\ansicpg932\\'82\\'a0\\'83A", u"\u3042\u30A2"},
        {"UTF-8", u"\\ansicpg65001 \\'c3\\'a9", u"\u00E9"},
        {"an unknown code page is western", u"\\ansicpg99999\\'e9", u"\u00E9"},
        {"the code page of a font", u"{\\fonttbl{\\f1\\fcharset161 A;}}{\\f1\\'e1}\\'e1",
         u"\u03B1\u00E1"},
        {"old computers", u"\\mac\\'8e", u"\u00E9"},
        {"one stand-in", u"\\u8364?a\\u-4 ?b", u"\u20ACa\uFFFCb"},
        {"several stand-ins", u"\\uc2\\u8364\\'80xa{\\uc0\\u65 b}\\u66 cde", u"\u20ACaAbBe"},
        {"a word is one stand-in, a brace none", u"\\u65\\tab b{\\u66}c", u"AbBc"},
        {"what is not known and may be skipped", u"a{\\*\\xyz b{\\b c}}d{\\xyz e}", u"ade"},
        {"headers and notes", u"{\\header a}{\\info{\\title b}}{\\stylesheet c;}d{\\footnote e}",
         u"d"},
        {"Unicode among alternatives", u"{\\upr{a}{\\*\\ud{b}}}c", u"bc"},
        {"hidden and deleted text", u"a{\\v b}{\\deleted c}\\v d\\v0 e", u"ae"},
        {"fields", u"{\\field{\\*\\fldinst PAGE}{\\fldrslt 3}}", u"3"},
        {"tables", u"\\trowd\\cellx1 a\\cell b\\cell\\row\\cell c\\cell\\row\\row d",
         u"a\tb\n\tc\n\nd"},
        {"hidden ends of paragraphs", u"a{\\v b\\par}c", u"ac"},
        {"beyond the first plane", u"\\u128512?\\u-10179?\\u-8704?", u"\U0001F600\U0001F600"},
        {"what is shown in place of an older form stays where that was",
         u"{\\fonttbl{\\f0{\\upr{a}{\\*\\ud b}};}}{\\listtext{\\*\\shppict{\\pict}}c\\tab}d",
         u"\tc\td"},
        {"binary data", u"a\\bin3 }}}b\\bin-1 c", u"abc"},
        {"numbers and symbols that are cut off", u"a\\'", u"a"},
        {"a picture that is none", u"{\\pict\\pngblip 00ff}a", u"a"},
        {"its alternative text", u"{\\pict{\\*\\picprop{\\sp{\\sn wzDescription}{\\sv b}}}00}",
         u"b"},
        {"no marker but an item", u"{\\listtext\\tab a{\\par}}b", u"\ta\nb"},
        {"an old list", u"{\\pntext\\f1\\'b7\\tab}{\\*\\pn\\pnlvlblt}a", u"\t\u25CF\ta"},
    };
    testing::checkRows(rows, bodyText);
}

TEST_CASE("readers number items as the text has them") {
    const testing::TextRow<std::size_t> rows[] = {
        {"numbers that follow each other", u"123", 1},
        {"a list that starts later", u"78", 1},
        {"a number that is left out", u"134", 2},
        {"numbers that start again", u"1212", 2},
    };
    const Value style = Value::boxed(ParagraphStyle{
        .headIndent = 20, .tabStops = {{TextAlignment::Right, 15}, {TextAlignment::Natural, 20}}});
    testing::checkRows(rows, [&](StringView numbers) {
        RichText text;
        for (const char16_t digit : numbers) {
            const String item = u"\t" + String(1, digit) + u".\tx\n";
            text.appendAttributedString(RichText(item, {{NSParagraphStyleAttributeName, style}}));
        }
        const Data document = text.RTF();
        std::size_t lists = 0;
        for (std::string_view rest = textOf(document); rest.find("\\levelstartat") != rest.npos;
             ++lists) {
            rest.remove_prefix(rest.find("\\levelstartat") + 1);
        }
        return lists;
    });
}

TEST_CASE("lists from elsewhere become items with our markers and stops") {
    const std::string list =
        "{\\fonttbl{\\f2\\fcharset2 "
        "Symbol;}}{\\*\\listtable{\\list\\listid7{\\listlevel\\levelnfc23"
        "{\\leveltext\\'01\\u-3913 ?;}{\\levelnumbers;}\\fi-360\\li720}{\\listlevel\\levelnfc4"
        "{\\leveltext\\'02\\'01.;}{\\levelnumbers\\'01;}}}}"
        "{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}}";
    const auto text = read("{\\rtf1" + list +
                           "{\\listtext\\pard\\plain\\f2 \\'b7\\tab}\\pard\\ls1\\ilvl0 a\\par"
                           "{\\listtext\\pard b.\\tab}\\pard\\fi-200\\li1000\\ls1\\ilvl1 c}");
    REQUIRE(text.has_value());
    CHECK(text->string() == u"\t\u25CF\ta\n\tb.\tc");
    CHECK(text->attributesAtIndex(0).font() == nullptr);
    const ParagraphStyle outer = styleAt(*text, 0);
    CHECK(outer.tabStops ==
          std::vector<TextTab>{{TextAlignment::Right, 18}, {TextAlignment::Natural, 36}});
    CHECK(outer.headIndent == 36);
    CHECK(outer.firstLineHeadIndent == 0);
    CHECK(outer.textLists.empty());
    CHECK(styleAt(*text, 6).textLists == TextLists{{u"{disc}"}});
    CHECK(styleAt(*text, 6).tabStops[0].location == 40);
}

TEST_CASE("fonts are looked up by their own name, by family, or kept by name; colours by number") {
    const testing::MadeUpFonts fonts;
    struct Row {
        std::string look;
        Font font;
    };
    const std::string table =
        "{\\fonttbl\\f0 Mono;\\f1 Gr\\'f6\\'dfe;{\\f2 Heavy{\\*\\falt Heavy-Semibold};}\\f3 "
        "Serif-Bold;}";
    const Row rows[] = {
        {"\\f0\\fs30", {u"Mono", u"Mono-Regular", 15}},
        {"\\f0\\b\\i", {u"Mono", u"Mono-BoldItalic", 12, 3, 9}},
        {"\\f1\\b", {u"Gr\u00F6\u00DFe", u"Gr\u00F6\u00DFe", 12, 2, 9}},
        {"\\f2\\b", {u"Heavy", u"Heavy-Semibold", 12, 2, 8}},
        {"\\f3", {u"Serif", u"Serif-Bold", 12, 2, 9}},
        {"\\b\\fs0", {u"Sans", u"Sans-Bold", 12, 2, 9}},
        {"\\deff0\\f3\\plain", {u"Mono", u"Mono-Regular", 12}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.look);
        const auto text = read("{\\rtf1" + table + row.look + " a}");
        REQUIRE(text->attributesAtIndex(0).font() != nullptr);
        CHECK(*text->attributesAtIndex(0).font() == row.font);
    }
    CHECK(read("{\\rtf1 a}")->attributesAtIndex(0).empty());
    const auto red = read("{\\rtf1{\\colortbl\\red255;}a\\cf0 b}");
    CHECK(red->attributesAtIndex(0).empty());
    CHECK(red->attributesAtIndex(1).foregroundColor()->redComponent() == 1);
}

TEST_CASE("what is no document gives nothing, and hostile ones end soon") {
    for (const std::string_view document : {"", "a", "{", "\\rtf1", "{\\rt", "{a\\rtf1}"}) {
        CAPTURE(document);
        CHECK_FALSE(read(document).has_value());
    }
    CHECK_FALSE(richTextFromRTFD(bytesOf("{\\rtf1 a}")).has_value());
    CHECK(read("{\\rtf1 a")->string() == u"a");
    CHECK(read("{\\rtf1 a}b}")->string() == u"a");
    constexpr std::size_t kMany = 100'000;
    const auto start = std::chrono::steady_clock::now();
    testing::onSmallStack([&] {
        CHECK_FALSE(read("{\\rtf1" + repeated("{", kMany)).has_value());
        const std::string pieces[] = {"{\\b",
                                      "\\tx9{",
                                      "\\tx1\\tqr",
                                      "{\\field",
                                      "{\\field{\\fldrslt a}}",
                                      "{\\pict 00}",
                                      "\\ls1{\\listtext\\'b7}a\\par",
                                      "\\fs1 a\\fs2 b",
                                      "\\li1\\par",
                                      "\\u1\\uc99999",
                                      "\\'81",
                                      "\\f1\\f2 a",
                                      "{\\*\\listtable{\\list{\\listlevel}\\listid1}}"};
        for (const std::string& piece : pieces) {
            const bool nests = std::ranges::count(piece, '{') > std::ranges::count(piece, '}');
            const std::string document = repeated(piece, nests ? kMany / 4 : kMany);
            CHECK(read("{\\rtf1\\ansicpg932" + document).has_value());
        }
    });
    CHECK(std::chrono::steady_clock::now() - start < std::chrono::seconds(60));
}

TEST_CASE("a bundle is an archive that unpackers open") {
    const LabelledImages images;
    const testing::TemporaryFolder folder;
    RichText text(u"a\uFFFC\uFFFC");
    text.addAttribute(NSAttachmentAttributeName,
                      Value::boxed(TextAttachment{LabelledImages::image("GIF:x"), 1, 1, u"", u""}),
                      {1, 2});
    const Data bundle = text.RTFD();
    CHECK(richTextFromRTFD(bundle) == text);
    REQUIRE(writeFileAtomically(folder / "a.zip", bundle));
    const std::string unpack =
        "cd '" + folder.path().string() + "' && command -v unzip > /dev/null && unzip -q a.zip";
    if (std::system(unpack.c_str()) == 0) {
        CHECK(readFile(folder / "TXT.rtf").has_value());
        CHECK(textOf(*readFile(folder / "image-1.gif")) == "GIF:x");
    }
    for (std::size_t at = 0; at < bundle.size(); ++at) {
        Data damaged = bundle;
        damaged[at] ^= 0x55;
        (void)richTextFromRTFD(damaged);
        damaged.resize(at);
        CHECK_FALSE(richTextFromRTFD(damaged).has_value());
    }
}

TEST_CASE("office programs convert what is written" *
          doctest::skip(std::system("command -v soffice > /dev/null") != 0)) {
    const testing::TemporaryFolder folder;
    const RichText text(u"one \u4E2D\n\t1.\ttwo\n");
    REQUIRE(writeFileAtomically(folder / "a.rtf", text.RTF()));
    const std::string convert = "cd '" + folder.path().string() +
                                "' && soffice -env:UserInstallation=file://$PWD/profile --headless "
                                "--convert-to txt:Text a.rtf > /dev/null 2>&1";
    REQUIRE(std::system(convert.c_str()) == 0);
    const auto converted = readFile(folder / "a.txt");
    REQUIRE(converted.has_value());
    CHECK(textOf(*converted).find("one \u4E2D") != std::string_view::npos);
    CHECK(textOf(*converted).find("two") != std::string_view::npos);
}

}  // namespace QZCore
