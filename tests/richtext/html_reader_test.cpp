// HTML as rich text. How each text shows is told by lines of runs.
#include <doctest/doctest.h>

#include "QZCore/color/color_bytes.h"
#include "QZCore/richtext/html.h"
#include "support/font_scope.h"
#include "support/random_rich_text.h"
#include "support/random_texts.h"
#include "support/small_stack.h"
#include "support/text_rows.h"

namespace QZCore {
namespace {

RichText read(StringView html) {
    const auto text = RichText::attributedStringWithHTML(html);
    REQUIRE(text);
    return *text;
}

/// What distinguishes a font from the user's at 12 points.
String fontNotes(const Font& font) {
    String notes;
    if (font.familyName != u"Sans") notes += u" " + font.familyName;
    if (font.pointSize != 12) notes += u" " + shortestString(font.pointSize);
    if ((font.traits & kFontBold) != 0) notes += u" bold";
    if ((font.traits & kFontItalic) != 0) notes += u" italic";
    return notes;
}

/// What distinguishes a run from others, in words.
String notesOf(const TextAttributes& attributes) {
    String notes = attributes.font() == nullptr ? u" no font" : fontNotes(*attributes.font());
    if (!attributes.foregroundColor()->isIdenticalTo(Color::textColor())) {
        notes += u" " + attributes.foregroundColor()->stringForColor();
    }
    for (const TextAttribute& attribute : attributes.entries()) {
        const bool isNamed = attribute.name == NSFontAttributeName ||
                             attribute.name == NSForegroundColorAttributeName;
        if (!isNamed) notes += u" " + attribute.name.text() + u" " + attribute.value.description();
    }
    return notes;
}

/// Each run in brackets with what distinguishes it; "/" for line ends.
String shown(StringView html) {
    const RichText text = read(html);
    String runs;
    for (const TextRunView run : text.runs()) {
        String units = text.string(run.range);
        for (char16_t& unit : units) unit = unit == u'\n' ? u'/' : unit == u'\u2028' ? u'|' : unit;
        runs += u"[" + units + u"]" + notesOf(run.attributes);
    }
    return runs;
}

String plain(StringView html) { return read(html).string(); }

String repeated(StringView piece, std::size_t times) {
    String text;
    for (std::size_t i = 0; i < times; ++i) text += piece;
    return text;
}

}  // namespace

TEST_CASE("a page without styles is in the user's font and the default colour of text") {
    const testing::MadeUpFonts fonts;
    const RichText text = read(u"<p>a <a href='http://a.example/'>b</a></p>");
    CHECK(text.string() == u"a b");
    for (const TextRunView run : text.runs()) {
        CHECK(run.attributes.foregroundColor()->isIdenticalTo(Color::textColor()));
        CHECK(*run.attributes.font() == FontManager::shared().userFont(12));
        CHECK(run.attributes.underlineStyle() == 0);
    }
    CHECK(text.attributesAtIndex(2).link()->url()->absoluteString == u"http://a.example/");
    CHECK(read(u"").empty());
    CHECK(read(u"<!doctype html><title>a</title><script>b</script><!-- c -->").empty());
}

TEST_CASE("HTML is told from text as the standard has it") {
    const testing::TextRow<StringView> rows[] = {
        {"references", u"&lt;&amp&#65;&#x42;&notit;&hearts;&nbsp;.&nope;&#;&",
         u"<&AB¬it;♥\u00a0.&nope;&#;&"},
        {"numbers of no character", u"&#0;&#xD800;&#1114112;&#x80;", u"\uFFFD\uFFFD\uFFFD\u20AC"},
        {"beyond the first plane", u"&#x1F600;\xD83D\xDE00", u"\xD83D\xDE00\xD83D\xDE00"},
        {"unpaired surrogates", u"a\xD800z", u"a\uFFFDz"},
        {"no tags", u"1 < 2 <3 </ > <", u"1 < 2 <3 <"},
        {"comments", u"a<!-- <b> -- > -->b<!-->c<!--->d<?x?>e<!x>f</3>g<!--", u"abcdefg"},
        {"a tag that the text ends in", u"a<b title='", u"a"},
        {"no markup in these",
         u"<title>x</b></title>a<script>'</b>'</script>b<style></style>c"
         u"<textarea> <b>&lt;</textarea>",
         u"abc <b><"},
        {"white space collapses", u" a \n\t b <b> c</b> <i> </i>d ", u"a b c d"},
        {"around blocks, too", u"<div> a </div>\n <div>\n</div> <p> b", u"a\nb"},
        {"but not where it is kept", u"<pre>\n a\n\n  b \n</pre><p style='white-space:pre'> c",
         u" a\n\n  b \n c"},
        {"only line ends are", u"<p style='white-space:pre-line'> a \n  b", u"a\nb"},
        {"breaks", u"<p>a<br>b<br></p><br><p><br></p>c<br><br>", u"a\u2028b\n\n\nc\u2028"},
        {"any line end", u"<pre>a\rb\r\nc", u"a\nb\nc"},
        {"tables",
         u"<table> <tr> <td>a</td> <td><p>b</p></td></tr> <tr><td><td>c<td>"
         u"</table>d",
         u"a\tb\n\tc\nd"},
        {"cells with several paragraphs", u"<tr><td>a<p>b</p><td>c</tr><table><tr><td>d",
         u"a\nb\tc\nd"},
        {"bullets and numbers",
         u"<ul><li>a<ul><li>b</ul><li><p>c</p><p>d</p></ul><ol start=9><li>e<li value=3>f<li></ol>",
         u"\t●\ta\n\t◦\tb\n\t●\tc\nd\n\t9.\te\n\t3.\tf\n\t4.\t"},
        {"items in other forms",
         u"<li>a<ul style='list-style:none'><li>b</ul><ul type=circle><li>c</ul><ul><li><ul><li>d",
         u"\t●\ta\nb\n\t◦\tc\n\t◦\t\n\t●\td"},
        {"what is not shown", u"a<span hidden>b<p>c</p></span><div style='display:none'>d", u"a"},
        {"a rule", u"a<hr>b", u"a\n———\nb"},
    };
    testing::checkRows(rows, plain);
}

TEST_CASE("elements and styles give text its look") {
    const testing::MadeUpFonts fonts;
    const testing::TextRow<StringView> rows[] = {
        {"elements", u"<b>a</b><em>b</em><u>c</u><s>d</s><code>e</code><small>f</small>",
         u"[a] bold[b] italic[c] underlineStyle 1[d] strikethroughStyle 1[e] Mono[f] 10"},
        {"shifts", u"<sup>a<sup>b</sup></sup><sub>c</sub><i style='vertical-align:2pt'>d",
         u"[a] superscript 1[b] superscript 2[c] superscript -1[d] italic baselineOffset 2"},
        {"formatting that crosses", u"<b>a<i>b</b>c</i>d", u"[a] bold[b] bold italic[c] italic[d]"},
        {"formatting left open goes on", u"<b>a</p><i>b", u"[a] bold[b] bold italic"},
        {"at most three times where it says the same", u"<p><b><b><b><b></p></b></b></b>a", u"[a]"},
        {"headings end each other", u"<style>* {margin:0}</style><h1>a<h2>b</h3>c",
         u"[a/] 24 bold[b/] 18 bold[c]"},
        {"but not out of a cell", u"<table><tr><td><b>a<td>b", u"[a] bold[\tb]"},
        {"colours",
         u"<i style='color:RED'>a</i><i style='color:#00f8'>b</i>"
         u"<i style='color:hsl(120 100% 50%)'>c</i><i style='color:rgb(1,2,3)'>d</i>"
         u"<i style='color:rgba(0,0,0,1)'>e</i><i style='color:nope'>f</i>",
         u"[a] italic red[b] italic rgb(0,0,255,0.533333)[c] italic green"
         u"[d] italic #010203[ef] italic"},
        {"fonts",
         u"<i style='font:bold 20px/2 Nope, \"Mono\", serif'>a</i>"
         u"<font face=Serif size=+2>b</font><b style='font-weight:400'>c</b>",
         u"[a] Mono 15 bold italic[b] Serif 18[c]"},
        {"sizes",
         u"<p style='margin:0;font-size:20pt'><i style='font-size:50%'>a</i>"
         u"<i style='font-size:1.5em'>b</i><i style='font-size:1rem'>c</i>"
         u"<i style='font-size:large'>d</i><i style='font-size:1e999px'>e",
         u"[a] 10 italic[b] 30 italic[c] italic[d] 13.5 italic[e] 20 italic"},
        {"decorations reach inwards",
         u"<u>a<a style='text-decoration:none'>b</a></u>"
         u"<i style='text-decoration:underline line-through'>c",
         u"[ab] underlineStyle 1[c] italic strikethroughStyle 1 underlineStyle 1"},
        {"a background", u"<mark>a</mark><body bgcolor=red><div style='background:red'>b",
         u"[a] backgroundColor yellow[/b]"},
        {"selectors",
         u"<style>/* x */ .a b, #x {color:red} i.a{color:lime} b{color:blue}"
         u" @media print {b{color:white}} u>b{color:white}</style>"
         u"<b>a</b><p class='q a' style='margin:0'><b>b</b><b id=x>c</b><i class=a>d",
         u"[a] bold blue[/][bc] bold red[d] italic green"},
        {"children, links and the root",
         u"<style>u > b, q>i>u b{color:red} b:link, a:link b{color:lime} :root s{color:blue}"
         u" b:hover, >b, b>{color:white}</style>"
         u"<u><b>a</b><i><b>b</b></i></u><q><i><u>c<tt><b>d</b></tt></u></i></q><a "
         u"href=#><b>e</b></a><s>f",
         u"[a] bold red underlineStyle 1[b] bold italic underlineStyle 1[c] italic "
         u"underlineStyle 1[d] Mono bold italic red underlineStyle 1[e] bold green link #"
         u"[f] blue strikethroughStyle 1"},
        {"the stronger one wins",
         u"<style>b{color:red!important}b{color:lime}i{color:lime}</style>"
         u"<b style='color:blue'>a</b><i style='color:blue'>b",
         u"[a] bold red[b] italic blue"},
        {"a sheet in a comment", u"<style><!-- b{color:red} --></style><b>a", u"[a] bold red"},
        {"paragraphs",
         u"<p align=right style='margin:1pt 2pt 3pt 4pt;text-indent:5pt;line-height:20pt'>a",
         u"[a] paragraphStyle right, min-line 20, max-line 20, before 1, after 3, head 4, "
         u"first-head 9, tail "
         u"-2"},
        {"space that stands around a kept block", u"<pre style='margin:1pt 0 2pt'>a\nb</pre>",
         u"[a/] Mono paragraphStyle before 1[b] Mono paragraphStyle after 2"},
        {"items as those of Markdown", u"<ul style='margin:0'><li>a<ol><li>b",
         u"[\t●\ta/] paragraphStyle head 11, tab 6, tab 11"
         u"[\t1.\tb] paragraphStyle head 38, tab 33, tab 38, list {disc}"},
        {"paragraphs below an item", u"<ul><li>a<p style='margin:0'>b</p>c",
         u"[\t●\ta/] paragraphStyle head 11, tab 6, tab 11"
         u"[b/] paragraphStyle head 11, first-head 11, tab 6, tab 11"
         u"[c] paragraphStyle after 12, head 11, first-head 11, tab 6, tab 11"},
        {"quotations and directions", u"<blockquote dir=rtl>a",
         u"[a] paragraphStyle head 30, first-head 30, tail -30, direction 2"},
    };
    testing::checkRows(rows, shown);
}

TEST_CASE("images keep what is known of them, and nothing is fetched") {
    const auto imageIn = [](StringView html) {
        const RichText text = read(html);
        REQUIRE(text.string() == u"\uFFFC");
        return *text.attributesAtIndex(0).attachment();
    };
    const TextAttachment far = imageIn(u"<img src=' http://a.example/b.png ' alt=c width=64>");
    CHECK(far.source == u"http://a.example/b.png");
    CHECK(far.alternativeText == u"c");
    CHECK(far.width == 48);
    CHECK(far.image == nullptr);
    CHECK(plain(u"a<img>b") == u"ab");
    CHECK(imageIn(u"<img alt=a src='data:image/png;base64,?'>").image == nullptr);
    const StringView drawing =
        u"<img src='data:image/svg+xml,%3Csvg xmlns=\"http://www.w3.org/2000/svg\" "
        u"width=\"4\" height=\"2\"/%3E' style='height:5pt'>";
    if (makePlatformImageDecoder() == nullptr) return;
    const TextAttachment near = imageIn(drawing);
    REQUIRE(near.image != nullptr);
    CHECK(near.image->mediaType == u"image/svg+xml");
    CHECK(near.width == 10);
    CHECK(near.height == 5);
    CHECK(imageIn(htmlFromRichText(read(drawing))) == near);
}

TEST_CASE("what HTML can hold comes back from it") {
    const testing::MadeUpFonts madeUp;
    testing::RandomRichTexts texts(11);
    const auto readable = [](const TextAttributes& attributes) {
        const Font* font = attributes.font();
        const FontManager fonts = FontManager::shared();
        const Font user = fonts.userFont(12);
        // What is not installed comes back as what is in its place.
        const bool isMissing = font != nullptr && !fonts.isFamilyInstalled(font->familyName);
        const Font shown = isMissing         ? *fonts.fontNamed(u"Mono-Regular", font->pointSize)
                           : font == nullptr ? user
                                             : *font;
        const Color* color = attributes.foregroundColor();
        const Color* background = attributes.backgroundColor();
        const ParagraphStyle* style = attributes.paragraphStyle();
        return TextAttributes{
            {NSFontAttributeName, Value::boxed(shown)},
            {u"color", descriptionOf(color == nullptr ? Color() : *color)},
            {u"background", background == nullptr ? String() : descriptionOf(*background)},
            {u"underline", attributes.underlineStyle()},
            {u"link", attributes.link() == nullptr ? String() : attributes.link()->stringValue()},
            {u"style", descriptionOf(style == nullptr ? ParagraphStyle() : *style)}};
    };
    for (int i = 0; i < 2000; ++i) {
        RichText text = texts.next();
        text.fixAttributesInRange({0, text.length()});
        for (const HtmlForm form : {HtmlForm::Page, HtmlForm::Fragment}) {
            const String html = htmlFromRichText(text, {.form = form});
            CAPTURE(html);
            const RichText back = read(html);
            // A line end at the very end is no paragraph.
            const std::size_t length = back.length();
            REQUIRE(text.string({0, length}) == back.string());
            REQUIRE((text.length() == length || text.string({length, 9}) == u"\n"));
            for (std::size_t at = 0; at < length; ++at) {
                if (back.characterAtIndex(at) == u'\n') continue;
                REQUIRE(readable(back.attributesAtIndex(at)) ==
                        readable(text.attributesAtIndex(at)));
            }
        }
    }
}

TEST_CASE("a text that was read is read again from what is written of it") {
    const testing::MadeUpFonts fonts;
    testing::RandomTexts texts(u"0123456789");
    const StringView pieces[] = {u"<p>",   u"<b>", u"</b>",  u"<ul><li>", u"<li>",
                                 u"</ul>", u"a ",  u"<pre>", u"<h2>",     u"b\n"};
    for (int i = 0; i < 1000; ++i) {
        String html;
        for (const char16_t digit : texts.next(12)) html += pieces[digit - u'0'];
        CAPTURE(html);
        const RichText text = read(html);
        CHECK(read(htmlFromRichText(text)).string() == text.string());
    }
    const testing::TextRow<StringView> rows[] = {
        {"an empty item behind space", u"<ul><li>a<p>b</p><ol><li></ol></ul><p><br></p>c",
         u"\t●\ta\nb\n\t1.\t\n\nc"},
        {"a bullet that its depth does not have",
         u"<ul><li>a<ul style='list-style-type:disc'><li>b", u"\t●\ta\n\t●\tb"},
    };
    for (const HtmlForm form : {HtmlForm::Page, HtmlForm::Fragment}) {
        testing::checkRows(rows, [&](StringView html) {
            return read(htmlFromRichText(read(html), {.form = form})).string();
        });
    }
}

TEST_CASE("hostile HTML is read in linear time and without depth") {
    const testing::MadeUpFonts fonts;
    constexpr std::size_t kMany = 100000;
    String attributes = u"<a";
    for (std::size_t i = 0; i < kMany; ++i) attributes += u" a" + unsignedString(i);
    struct Row {
        const char* why;
        String html;
        std::size_t length;
    };
    const Row rows[] = {
        {"nested", repeated(u"<div><b>", kMany) + u"x", 1},
        {"nested lists", repeated(u"<ul><li>", kMany), 4 * kMany - 1},
        {"nested tables", repeated(u"<table><tr><td>", kMany) + u"x", 1},
        {"ends of others", repeated(u"<b>", kMany) + repeated(u"</i>", kMany) + u"x", 1},
        {"crossing", repeated(u"<b>", kMany) + repeated(u"<i>", kMany) + repeated(u"</b>", kMany),
         0},
        {"crossing with a long attribute",
         repeated(u"<i>", kMany) + u"<b class='" + String(kMany, u'x') + u"'>" +
             repeated(u"</i>", kMany) + u"x",
         1},
        {"one attribute", u"<a href='" + String(10 * kMany, u'x') + u"'>x", 1},
        {"many attributes", attributes + u">x", 1},
        {"references", repeated(u"&amp;", kMany), kMany},
        {"no references", repeated(u"&abcdefgh", kMany), 9 * kMany},
        {"comments left open", repeated(u"<!--", kMany), 0},
        {"many rules",
         u"<style>" + repeated(u".a b{color:red}", kMany) + u"</style><b class=a>" +
             repeated(u"<b class=a>", kMany) + u"x",
         1},
        {"parentheses", u"<p style='" + repeated(u"color:(", kMany) + u"'>x", 1},
        {"numbered items", u"<ol>" + repeated(u"<li>", kMany), 788894 + kMany},
    };
    testing::onSmallStack([&] {
        for (const Row& row : rows) {
            CAPTURE(row.why);
            CHECK(read(row.html).length() == row.length);
        }
    });
}

}  // namespace QZCore
