// Random rich texts of all that RTF can hold, the same on every run.
#pragma once

#include <random>
#include <vector>

#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore::testing {

/// Makes texts of some paragraphs, items of lists among them, each of a few
/// runs. Attributes have the values in which RTF gives them back.
class RandomRtfTexts {
public:
    explicit RandomRtfTexts(unsigned seed) : random_(seed) {}

    /// Attachments, where they are wanted, show this image.
    std::shared_ptr<const Image> image{};

    [[nodiscard]] RichText next() {
        RichText text;
        for (std::size_t paragraphs = below(7); paragraphs > 0; --paragraphs) {
            addParagraph(text, paragraphs > 1 || below(2) == 0);
        }
        return text;
    }

private:
    // Of the text on the page: lines that end further right reach into the margin.
    static constexpr double kPageWidth = 432;

    [[nodiscard]] std::size_t below(std::size_t limit) { return random_() % limit; }
    [[nodiscard]] bool chance(std::size_t in) { return below(in) == 0; }
    [[nodiscard]] double length() { return static_cast<double>(below(800)) / 20; }
    [[nodiscard]] Value oneOf(const std::vector<Value>& values) {
        return values[below(values.size())];
    }

    void addParagraph(RichText& text, bool ends) {
        const bool isItem = chance(3);
        if (!isItem) lists_ = {};
        const ParagraphStyle style = isItem ? itemStyle() : paragraphStyle();
        const bool isPlain = style == ParagraphStyle();
        const Value look = isPlain ? Value() : Value::boxed(style);
        if (isItem) appendMarker(text, look);
        for (std::size_t runs = below(4); runs > 0; --runs) append(text, units(), look);
        if (image != nullptr && chance(2)) appendImage(text, look);
        if (ends) append(text, u"\n", look);
    }

    void append(RichText& text, StringView units, const Value& look) {
        text.appendAttributedString(
            RichText(units, attributes().withAttribute(NSParagraphStyleAttributeName, look)));
    }

    /// Markers are no links, which readers would not draw so.
    void appendMarker(RichText& text, const Value& look) {
        const std::size_t start = text.length();
        append(text, u"\t" + marker() + u"\t", look);
        text.removeAttribute(NSLinkAttributeName, {start, text.length() - start});
    }

    void appendImage(RichText& text, const Value& look) {
        const TextAttachment attachment{image, length() + 1, length() + 1, units(), units()};
        append(text, {&kAttachmentCharacter, 1}, look);
        text.addAttribute(NSAttachmentAttributeName, Value::boxed(attachment),
                          {text.length() - 1, 1});
    }

    [[nodiscard]] String units() {
        static constexpr char16_t kUnits[] = {u'a',  u'Z',   u'7',   u' ',   u'-',   u'\\',  u'{',
                                              u'}',  u'\'',  u'"',   u';',   u'*',   u'?',   0xE9,
                                              0xA0,  0x2013, 0x20AC, 0x4E2D, 0xD83D, 0xDE00, 0x2028,
                                              u'\f', 1,      0x7F,   0xFFFD};
        String text;
        for (std::size_t count = 1 + below(6); count > 0; --count)
            text += kUnits[below(std::size(kUnits))];
        return text;
    }

    [[nodiscard]] TextAttributes attributes() {
        const Value underline = oneOf({{}, {}, 1, 2, 9, 0x101, 0x201, 0x401, 0x8001});
        return {
            {NSFontAttributeName, oneOf(fonts_)},
            {NSForegroundColorAttributeName, oneOf(colors_)},
            {NSBackgroundColorAttributeName, oneOf(colors_)},
            {NSUnderlineStyleAttributeName, underline},
            {NSUnderlineColorAttributeName, underline.isAbsent() ? Value() : oneOf(colors_)},
            {NSStrikethroughStyleAttributeName, oneOf({{}, {}, 1, 9})},
            {NSSuperscriptAttributeName, oneOf({{}, {}, 1, -1})},
            {NSBaselineOffsetAttributeName, oneOf({{}, {}, 2.5, -3.0})},
            {NSLinkAttributeName,
             oneOf({{}, {}, URL{u"https://a.example/?q=%22#p"}, u"\"a\\ b", u"#place", u"a b:c"})}};
    }

    [[nodiscard]] ParagraphStyle paragraphStyle() {
        ParagraphStyle style;
        style.alignment = textAlignmentForCode(static_cast<std::int64_t>(below(5)));
        if (chance(2)) style.headIndent = length();
        if (chance(2)) style.firstLineHeadIndent = length();
        if (chance(3)) style.tailIndent = -length();
        if (chance(9)) style.tailIndent = kPageWidth + 1 + length();
        if (chance(3)) style.paragraphSpacing = length();
        if (chance(3)) style.paragraphSpacingBefore = length();
        if (chance(3)) style.lineSpacing = length();
        if (chance(3)) style.lineHeightMultiple = 1.25;
        if (chance(3)) style.minimumLineHeight = length();
        if (chance(3)) style.maximumLineHeight = chance(2) ? style.minimumLineHeight : length();
        if (chance(4)) style.baseWritingDirection = static_cast<WritingDirection>(below(2));
        if (chance(4))
            style.tabStops = {{TextAlignment::Center, length()},
                              {TextAlignment::Natural, length()}};
        if (chance(4)) style.textBlocks = {{.padding = length() + 1, .backgroundColor = gray_}};
        return style;
    }

    /// The style of an item in the open list, or in one around it or within.
    [[nodiscard]] ParagraphStyle itemStyle() {
        const std::size_t depth = below(lists_.size() + 2);
        if (depth > lists_.size()) {
            lists_.push_back({chance(2) ? u"{disc}" : u"{decimal}"});
        } else {
            lists_.resize(depth);
        }
        ParagraphStyle style;
        for (const TextList& list : lists_) style.textLists = style.textLists.with(list);
        style.headIndent = 20 * static_cast<double>(lists_.size() + 1);
        style.tabStops = {{TextAlignment::Right, style.headIndent - 5},
                          {TextAlignment::Natural, style.headIndent}};
        return style;
    }

    [[nodiscard]] String marker() {
        if (chance(2)) return chance(2) ? u"\u25CF" : u"\u25E6";
        return unsignedString(1 + below(120)) + u".";
    }

    static Value installed(StringView face, double size) {
        return Value::boxed(*FontManager::shared().fontNamed(face, size));
    }

    std::mt19937 random_;
    std::vector<TextList> lists_;
    Color gray_ = Color::colorWithCalibrated255Red(200, 200, 200);
    std::vector<Value> colors_{
        {}, {}, Value::boxed(Color::colorWithCalibrated255Red(1, 2, 254)), Value::boxed(gray_)};
    std::vector<Value> fonts_{
        {},
        installed(u"Sans-Regular", 12),
        installed(u"Mono-BoldItalic", 9.5),
        installed(u"Heavy-Semibold", 30),
        Value::boxed(Font{u"Wéird Name", u"Weird-Bold", 12, kFontBold, 9}),
    };
};

}  // namespace QZCore::testing
