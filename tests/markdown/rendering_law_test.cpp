// Rendering against its rules, carried out one by one on the plainest form of a
// text: expressions searched by the engine, matches edited from the last to the
// first, one attribute set for each unit.
#include <random>

#include "QZCore/codecs/parsing.h"
#include "QZCore/color.h"
#include "QZCore/markdown.h"
#include "QZCore/platform/images.h"
#include "markdown/link_target.h"
#include "markdown/rendering_in_parts.h"
#include "support/engine_matches.h"
#include "support/font_scope.h"
#include "support/markdown_settings.h"
#include "support/plain_list.h"
#include "support/printing.h"
#include "support/rich_text_twin.h"
#include "tools/qznote/runs_writer.h"

namespace QZCore {
namespace {

using namespace std::string_view_literals;
using testing::MarkdownSettings;

class PlainRendering {
public:
    PlainRendering(const RichText& text, const MarkdownSettings& settings)
        : settings_(settings), styles_(settings.styles()) {
        live_.replace({}, text);
        searched_ = text.string();
        for (const RegexMatch& escape : matchesOf(kMarkdownEscape)) {
            searched_.replace(escape.range().location, 2, u"@@");
        }
        const Dictionary* body = styleNamed(u"body");
        bodyFont_ = fontAt(0);
        if (body == nullptr) return;
        add(fontAttributesWithDefaultStyle(nullptr, body, bodyFont_), {0, searched_.size()});
        bodyFont_ = fontAt(0);
    }

    RichText result() {
        const Color text = Color::textColor();
        const Dictionary italic{{kStyleFontItalic, true}};
        const Dictionary bold{{kStyleFontBold, true}};
        const Dictionary both{{kStyleFontBold, true}, {kStyleFontItalic, true}};
        Dictionary highlight;
        setColor(highlight,
                 color(u"Markdown Highlight Color", Color::colorWithCalibratedRed(1, 1, 0, 0.4)),
                 kStyleBackgroundColor);

        const Dictionary codeBlock = codeStyle(u"Markdown Code Block ", text);
        renderStyled(kMarkdownCodeBlock, {.group = 1}, codeBlock, u"```", markOfCode());
        renderLinks();
        const Dictionary inlineCode = codeStyle(u"Markdown Inline Code ", {});
        renderStyled(kMarkdownInlineCode, {.delimiter = 1}, inlineCode, u"`", markOfCode());
        renderEmoji();
        renderStyled(kMarkdownItalicAsterisk, {.delimiter = 1}, italic, u"*");
        renderStyled(kMarkdownItalicUnderscore, {.delimiter = 1}, italic, u"*");
        renderStyled(kMarkdownBold, {.delimiter = 2}, bold, u"**");
        renderStyled(kMarkdownBoldItalic, {.delimiter = 3}, both, u"***");
        renderLines(kMarkdownUnderline, NSUnderlineStyleAttributeName);
        renderLines(kMarkdownStrikethrough, NSStrikethroughStyleAttributeName);
        renderStyled(kMarkdownHighlightEquals, {.delimiter = 2}, highlight, u"highlight");
        renderStyled(kMarkdownHighlightCaret, {.delimiter = 2}, highlight, u"highlight");
        renderStyled(kMarkdownHighlightColon, {.delimiter = 2}, highlight, u"highlight");
        renderStyled(kMarkdownBlockQuote, {.group = 2}, quoteStyle(text), u">");
        renderHeaders(text);
        renderLists();
        return finished();
    }

private:
    // ---- What every pass does ----

    std::vector<RegexMatch> matchesOf(StringView key) const {
        return testing::engineMatches(settings_.syntax().expressionForKey(key), searched_);
    }

    template <class Edit>
    void forEachMatchFromTheLast(StringView key, Edit edit) {
        const std::vector<RegexMatch> matches = matchesOf(key);
        for (auto match = matches.rbegin(); match != matches.rend(); ++match) {
            const Range range = match->range();
            if (range.length == 0) continue;
            if (live_.attributes[range.location].find(kIgnoreBlockAttributeName)) continue;
            edit(*match);
        }
    }

    void erase(std::size_t from, std::size_t to) {
        live_.replace({from, to - from}, u"");
        searched_.erase(from, to - from);
    }

    void add(const TextAttributes& added, Range range) {
        live_.change(range, [&](const TextAttributes& before) { return before.mergedWith(added); });
    }

    void keep(const RegexMatch& match, Range content, const TextAttributes& added) {
        add(added, content);
        erase(content.end(), match.range().end());
        erase(match.range().location, content.location);
    }

    void replace(const RegexMatch& match, StringView with) {
        live_.replace(match.range(), with);
        searched_.replace(match.range().location, match.range().length, with);
    }

    // ---- Styles and settings ----

    const Dictionary* styleNamed(StringView name) const {
        const Value* style = styles_.find(name);
        return style == nullptr ? nullptr : style->dictionary();
    }

    Font fontAt(std::size_t index) const {
        const Font* font = live_.attributes[index].font();
        return font != nullptr ? *font : FontManager::shared().userFont(12);
    }

    TextAttributes resolved(const RegexMatch& match, const Dictionary& style,
                            StringView userStyle) const {
        const Font* font = live_.attributes[match.range().location].font();
        return fontAttributesWithDefaultStyle(&style, styleNamed(userStyle),
                                              font != nullptr ? *font : bodyFont_);
    }

    std::optional<Color> color(StringView key, std::optional<Color> otherwise = {}) const {
        return colorForKey(settings_.preferences(), key, otherwise);
    }

    double number(StringView key, double otherwise) const {
        return settings_.preferences().doubleForKey(key, otherwise);
    }

    TextAttributes markOfCode() const {
        if (!settings_.preferences().boolForKey(u"Markdown Use Ignore Block", true)) return {};
        return {{kIgnoreBlockAttributeName, u""}};
    }

    Dictionary codeStyle(const String& prefix, std::optional<Color> textColor) const {
        const Preferences& preferences = settings_.preferences();
        Dictionary style{{kStyleFontFamily, preferences.stringForKey(prefix + u"Font", u"Menlo")},
                         {kStyleBackgroundColor,
                          preferences.stringForKey(prefix + u"Background Color", u"#f1f1f1")}};
        setColor(style, color(prefix + u"Text Color", textColor), kStyleFontColor);
        return style;
    }

    Dictionary quoteStyle(const Color& textColor) const {
        Dictionary style{
            {kStyleFirstLineHeadIndent, number(u"Markdown Block Quote First Line Head Indent", 18)},
            {kStyleHeadIndent, number(u"Markdown Block Quote Head Indent", 18)},
            {kStyleTailIndent, number(u"Markdown Block Quote Tail Indent", -18)},
            {kStyleParagraphSpacingAfter,
             number(u"Markdown Block Quote Paragraph Spacing After", 10)}};
        setColor(style, color(u"Markdown Block Quote Text Color", textColor), kStyleFontColor);
        return style;
    }

    // ---- The passes ----

    /// A group of the match less the delimiters at both its ends.
    struct Content {
        std::size_t group = 0;
        std::size_t delimiter = 0;

        [[nodiscard]] Range of(const RegexMatch& match) const {
            const Range range = match.group(group);
            return {range.location + delimiter, range.length - 2 * delimiter};
        }
    };

    void renderStyled(StringView key, Content content, const Dictionary& style,
                      StringView userStyle, const TextAttributes& mark = {}) {
        forEachMatchFromTheLast(key, [&](const RegexMatch& match) {
            keep(match, content.of(match), resolved(match, style, userStyle).mergedWith(mark));
        });
    }

    void renderLines(StringView key, AttributeName name) {
        forEachMatchFromTheLast(key, [&](const RegexMatch& match) {
            keep(match, Content{.delimiter = 2}.of(match), {{name, 1}});
        });
    }

    TextAttributes linkLook() const {
        TextAttributes look = markOfCode();
        const auto linkColor = color(u"Link Color");
        if (linkColor && *linkColor != Color::clearColor()) {
            look = look.withAttribute(NSForegroundColorAttributeName, Value::boxed(*linkColor));
        }
        if (!settings_.preferences().boolForKey(u"Link Underline", true)) return look;
        return look.withAttribute(NSUnderlineStyleAttributeName, 1);
    }

    String textOf(Range range) const { return live_.text.substr(range.location, range.length); }

    void renderLinks() {
        const TextAttributes look = linkLook();
        forEachMatchFromTheLast(kMarkdownLink, [&](const RegexMatch& match) {
            const Range text = match.group(1);
            const Range target = match.group(2);
            const auto isInside = [&](Range group) {
                return group.length > 0 && group.location >= match.range().location &&
                       group.end() <= match.range().end();
            };
            if (!isInside(text) || !isInside(target)) return;
            if (live_.text[match.range().location] == u'!') return placeImage(match);
            const Value link = linkForTarget(textOf(target));
            keep(match, text, look.withAttribute(NSLinkAttributeName, link));
        });
    }

    void placeImage(const RegexMatch& match) {
        const String alternative = withoutEscapes(textOf(match.group(1)));
        const TextAttachment picture{std::make_shared<const Image>(cautionImage()), 32, 32,
                                     alternative.substr(0, alternative.rfind(u'|')),
                                     withoutEscapes(textOf(match.group(2)))};
        replace(match, StringView(&kAttachmentCharacter, 1));
        add({{NSAttachmentAttributeName, Value::boxed(picture)}}, {match.range().location, 1});
    }

    void renderEmoji() {
        forEachMatchFromTheLast(kMarkdownEmoji, [&](const RegexMatch& match) {
            const Range code = match.group(1);
            const auto emoji =
                emojiForShortcode(StringView(live_.text).substr(code.location, code.length));
            if (emoji) replace(match, *emoji);
        });
    }

    std::int32_t headerSize(std::size_t level) const {
        const String sizes = settings_.preferences().stringForKey(u"Markdown Header Sizes",
                                                                  u"32, 24, 18, 16, 13, 11");
        const std::vector<String> pieces = componentsSeparatedByPattern(sizes, u",");
        return level <= pieces.size() ? intValue(pieces[level - 1])
                                      : static_cast<std::int32_t>(bodyFont_.pointSize);
    }

    void renderHeaders(const Color& textColor) {
        Dictionary style{
            {kStyleFontBold, settings_.preferences().boolForKey(u"Markdown Header Bold", true)},
            {kStyleLineHeightMultiple, number(u"Markdown Header Line Height Multiple", 1)},
            {kStyleLineSpacing, number(u"Markdown Header Line Spacing", 0)},
            {kStyleParagraphSpacingBefore, number(u"Markdown Header Paragraph Spacing Before", 5)},
            {kStyleParagraphSpacingAfter, number(u"Markdown Header Paragraph Spacing After", 2)}};
        setColor(style, color(u"Markdown Header Text Color", textColor), kStyleFontColor);
        forEachMatchFromTheLast(kMarkdownHeaders, [&](const RegexMatch& match) {
            const std::size_t level = match.group(1).length;
            style.setObject(headerSize(level), kStyleFontSize);
            keep(match, match.group(2), resolved(match, style, String(level, u'#')));
        });
    }

    static bool hasText(StringView text) {
        return text.find_first_not_of(u" \t\r\n\u2028") != StringView::npos;
    }

    /// Whether one line with text and one without stand before the list.
    bool hasTitle(const RegexMatch& list) const {
        const String before = live_.text.substr(0, list.range().location);
        const std::size_t start = before.find_first_not_of(u" \t\r\n\u2028");
        if (start == String::npos) return false;
        const auto lines = componentsSeparatedByPattern(
            StringView(before).substr(start, before.size() - start - 1), u"\n");
        return lines.size() == 2 && hasText(lines[0]) && !hasText(lines[1]);
    }

    void renderLists() {
        forEachMatchFromTheLast(kMarkdownList, [&](const RegexMatch& match) {
            const Range range = match.range();
            RichText list(textOf(range));
            for (std::size_t i = 0; i < range.length; ++i) {
                list.setAttributes(live_.attributes[range.location + i], {i, 1});
            }
            const testing::PlainList rendered(settings_, list, hasTitle(match));
            live_.replace(range, rendered.result());
        });
    }

    // ---- The end ----

    RichText finished() {
        searched_ = live_.text;
        const std::vector<RegexMatch> escapes = matchesOf(kMarkdownEscape);
        for (auto escape = escapes.rbegin(); escape != escapes.rend(); ++escape) {
            erase(escape->range().location, escape->range().location + 1);
        }
        RichText text(live_.text);
        for (std::size_t i = 0; i < live_.text.size(); ++i) {
            text.setAttributes(live_.attributes[i].withoutAttribute(kIgnoreBlockAttributeName),
                               {i, 1});
        }
        text.fixAttributesInRange({0, text.length()});
        return text;
    }

    const MarkdownSettings& settings_;
    const StyleSheet styles_;
    testing::RichTextTwin live_;
    String searched_;
    Font bodyFont_;
};

// ---- Texts and settings -------------------------------------------------------

// What notes are made of, with dots between.
constexpr StringView kPieces =
    u"*\u00B7*\u00B7**\u00B7***\u00B7_\u00B7__\u00B7___\u00B7~~\u00B7==\u00B7^^\u00B7"
    u"::\u00B7`\u00B7`\u00B7``\u00B7```\u00B7```\n\u00B7\n```\u00B7\n\u00B7\n\u00B7"
    u"\n# \u00B7\n### \u00B7\n>\u00B7\n> \u00B7[\u00B7](\u00B7](c)\u00B7[a](b)\u00B7"
    u"![a\u00B7!\u00B7a\u00B7b\u00B7a\u00B7 \u00B7\\\u00B7\\*\u00B7\\_\u00B7\\[\u00B7@\u00B7"
    u":a:\u00B7:\u00B7smile\u00B7:heart:\u00B7\U0001F600\u00B7\xD83D\u00B7\xDE00\u00B7"
    u"\r\n\u00B7\u2028\u00B7\u0301\u00B7\0\u00B7<a|b>\u00B7a\n\nb\u00B7a\n\nb\u00B7"
    u"\n\n\u00B7.\n\n\u00B7(\u00B7)\u00B7\n- \u00B7\n- a\u00B7\n* \u00B7\n1. a\u00B7"
    u"\n12. \u00B7\n    - b\u00B7\n\t+ a\u00B7\n  \u00B7\t\u00B7- \u00B7\na\n\n- b"sv;

constexpr const char* kSettings[] = {
    "",
    R"({"styles": {"body": {"font-family": "Serif", "font-size": 15.5, "head-indent": 3}}})",
    R"({"styles": {"*": {"font-family": "None,Mono"}, "**": {"font-size": 20, "font-bold": false},
        "***": {"font-underline": true}, "`": {"font-color": "red"}, "```": {"font-size": 9},
        "highlight": {"background-color": "clear"}, ">": {"font-italic": true},
        "#": {"font-size": 40}, "###": {"paragraph-spacing-after": 9}}})",
    R"({"preferences": {"Markdown Use Ignore Block": false, "Markdown Header Sizes": "20,x",
        "Markdown Support Intraword Underscore Italic": true, "Link Color": "blue",
        "Markdown Regex Header No Space": true, "Markdown Header Bold": false}})",
    R"({"preferences": {"Markdown Highlight Color": "", "Markdown Header Text Color": "",
        "Markdown Block Quote Text Color": "", "Markdown Code Block Text Color": "",
        "Markdown Inline Code Text Color": "green", "Link Underline": false,
        "Markdown Header Sizes": "", "Markdown Support Bold": false}})",
    R"({"preferences": {"Import List Spaces Per Indent": 2, "Markdown Inline Lists Indentions": 4,
        "Markdown Inline Lists Indent First Level": true,
        "Markdown Inline Lists Alternate Discs": false,
        "Markdown Lists Start With Common Attributes": false,
        "Markdown Inline Lists Marker To Text Gap": 7,
        "Markdown Inline Lists Line Spacing": 2,
        "Markdown Inline Lists Paragraph Spacing After": 3},
        "styles": {"-": {"paragraph-spacing-before": 4, "line-spacing": 1, "font-size": 30}}})",
    R"({"preferences": {"Import List Spaces Per Indent": 0, "Markdown Support Code Blocks": false,
        "Markdown Inline Lists Only If Titled Indent First Level": false}})",
    R"({"preferences": {"Markdown RegEx Link": "<?(a*)[|]?(b*)>?"}})",
    R"({"preferences": {"Markdown RegEx Link": "<(a)(?=[|](b))|(?=a)|$"}})",
};

class NoteMaker {
public:
    RichText next() {
        String plain;
        for (std::size_t pieces = 1 + below(30); pieces > 0; --pieces) {
            plain += pieces_[below(pieces_.size())];
        }
        RichText text(plain, looks_[below(2)]);
        for (std::size_t stretches = below(4); stretches > 0; --stretches) {
            text.addAttributes(looks_[below(std::size(looks_))], {below(plain.size()), below(9)});
        }
        return text;
    }

private:
    std::size_t below(std::size_t bound) { return random_() % bound; }

    static TextAttributes fontLook(StringView name, double size) {
        const Font font = *FontManager::shared().fontNamed(name, size);
        return {{NSFontAttributeName, Value::boxed(font)}};
    }

    const TextAttributes looks_[6] = {
        {},
        fontLook(u"Sans-Regular", 13),
        fontLook(u"Mono-BoldItalic", 20.5),
        {{NSForegroundColorAttributeName, Value::boxed(Color::colorWithCalibratedRed(1, 0, 0, 1))}},
        {{NSParagraphStyleAttributeName, Value::boxed(ParagraphStyle{.headIndent = 5})}},
        {{kIgnoreBlockAttributeName, u""}},
    };
    const std::vector<String> pieces_ = componentsSeparatedByPattern(kPieces, u"\u00B7");
    std::mt19937 random_{20260102};
};

}  // namespace

TEST_CASE("a note renders as its rules say when they are carried out one by one") {
    const testing::MadeUpFonts fonts;
    NoteMaker notes;
    const int count = testing::equalityTexts(1500);
    for (const char* json : kSettings) {
        CAPTURE(json);
        const MarkdownSettings settings(json);
        int changed = 0;
        for (int i = count; i > 0; --i) {
            const RichText note = notes.next();
            const RichText expected = PlainRendering(note, settings).result();
            RichText rendered = note;
            // Cut as often as a note of that length can be, or not at all.
            const std::size_t partLength = i % 2 == 0 ? 1 : note.length();
            renderContainedMarkdownWithStyles(rendered, settings.styles(), settings.syntax(),
                                              settings.preferences(), partLength);
            changed += rendered.string() == note.string() ? 0 : 1;
            if (rendered == expected) continue;
            CAPTURE(qznote::runLines(note));
            CHECK(qznote::runLines(rendered) == qznote::runLines(expected));
            REQUIRE(rendered == expected);
        }
        CHECK(changed > count / 2);
    }
}

}  // namespace QZCore
