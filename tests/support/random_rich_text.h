// Random rich texts, the same on every run.
#pragma once

#include <random>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore::testing {

/// Makes short texts of runs whose attributes are drawn from few values each,
/// so that neighbours often share some of them.
class RandomRichTexts {
public:
    explicit RandomRichTexts(unsigned seed) : random_(seed) {}

    [[nodiscard]] std::size_t below(std::size_t limit) { return random_() % limit; }

    /// A text of 0 to 7 runs of one to three units.
    [[nodiscard]] RichText next() {
        RichText text;
        for (std::size_t runs = below(8); runs > 0; --runs) {
            const String units(1 + below(3), below(9) == 0 ? u'\n' : u'a');
            text.appendAttributedString(RichText(units, attributes()));
        }
        return text;
    }

    /// A set of attributes; often without some of them.
    [[nodiscard]] TextAttributes attributes() {
        return {{NSFontAttributeName, oneOf(fonts_)},
                {NSForegroundColorAttributeName, oneOf(colors_)},
                {NSBackgroundColorAttributeName, oneOf({{}, {}, colors_[1]})},
                {NSUnderlineStyleAttributeName, oneOf({{}, 0, 1})},
                {NSLinkAttributeName, oneOf({{}, {}, {}, u"a", u"b"})},
                {NSParagraphStyleAttributeName, oneOf(styles_)}};
    }

private:
    static Value font(StringView face, double size) {
        Font font{.familyName = u"Emoji", .faceName = String(face), .pointSize = size};
        return Value::boxed(FontManager::shared().fontNamed(face, size).value_or(font));
    }
    static Value style(TextAlignment alignment, double height) {
        return Value::boxed(ParagraphStyle{
            .alignment = alignment, .minimumLineHeight = height, .maximumLineHeight = height});
    }

    [[nodiscard]] Value oneOf(const std::vector<Value>& values) {
        return values[below(values.size())];
    }

    std::mt19937 random_;
    std::vector<Value> fonts_{{},
                              font(u"Sans-Regular", 12),
                              font(u"Sans-Regular", 12),
                              font(u"Sans-Bold", 12),
                              font(u"Mono-Italic", 14),
                              font(u"AppleColorEmoji", 12),
                              font(u"AppleColorEmoji", 14)};
    std::vector<Value> colors_{{},
                               Value::boxed(*Color::colorForString(u"red")),
                               Value::boxed(*Color::colorForString(u"#ff0000")),
                               Value::boxed(*Color::colorForString(u"blue")),
                               Value::boxed(Color::textColor()),
                               Value::boxed(Color::blackColor())};
    std::vector<Value> styles_{{},
                               style(TextAlignment::Left, 0),
                               style(TextAlignment::Left, 20),
                               style(TextAlignment::Center, 20)};
};

}  // namespace QZCore::testing
