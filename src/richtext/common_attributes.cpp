#include <algorithm>
#include <optional>

#include "QZCore/richtext/font_attributes.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/rich_text.h"
#include "richtext/attribute_names.h"
#include "richtext/cleaned_runs.h"
#include "richtext/compared_colors.h"
#include "richtext/distinct_sets.h"
#include "richtext/number_map.h"

namespace QZCore {
namespace {

/// What the fonts of a text have in common. An empty family, a size of 0 and a
/// weight of 0 mean that they differ.
struct CommonFont {
    String family;
    double size = 0;
    std::uint32_t traits = 0;
    int weight = 0;

    explicit CommonFont(const Font* font) {
        if (font == nullptr) return;
        *this = CommonFont(*font);
    }
    explicit CommonFont(const Font& font)
        : family(font.familyName), size(font.pointSize), traits(font.traits), weight(font.weight) {}

    void narrowTo(const CommonFont& other) {
        if (family != other.family) family.clear();
        if (size != other.size) size = 0;
        if (traits != other.traits) traits = 0;
        if (weight < 1 || weight != other.weight) weight = 0;
    }

    [[nodiscard]] bool hasNothing() const {
        return family.empty() && size == 0 && traits == 0 && weight == 0;
    }
};

/// The font of `family` that comes nearest to what is common.
std::optional<Font> fontLike(const CommonFont& common) {
    const FontManager fonts = FontManager::shared();
    if (!fonts.isFamilyInstalled(common.family)) return std::nullopt;
    const int weight = common.weight == 0 ? kFontRegularWeight : common.weight;
    return fonts.convertFontToFamily(
        {.pointSize = common.size, .traits = common.traits, .weight = weight}, common.family);
}

/// Collects what the runs of a text have in common, attribute by attribute.
class CommonAttributes {
public:
    explicit CommonAttributes(const FlatRuns& text) : text_(text), sets_(distinctSets(text)) {}

    TextAttributes find() {
        findFont();
        findForeground();
        for (const AttributeName name :
             {attributeNames().backgroundColor, attributeNames().underlineStyle,
              attributeNames().strikethroughStyle}) {
            findSpanning(name);
        }
        findParagraphStyle();
        return TextAttributes(std::move(found_));
    }

private:
    void add(AttributeName name, Value value) { found_.push_back({name, std::move(value)}); }

    /// Takes over the value that spans the whole text; false when none does.
    bool findSpanning(AttributeName name) {
        const Value* value = sets_.front()->find(name.text());
        if (value == nullptr || !haveSameValue(sets_, name.text())) return false;
        add(name, *value);
        return true;
    }

    void findFont() {
        if (findSpanning(attributeNames().font)) return;
        CommonFont common(sets_.front()->font());
        for (const TextAttributes* set : sets_) {
            common.narrowTo(CommonFont(set->font()));
            if (common.hasNothing()) return;
        }
        if (common.size <= 0) return;
        const auto font = common.family.empty() ? std::nullopt : fontLike(common);
        if (font) {
            add(attributeNames().font, Value::boxed(*font));
        } else {
            add(kQZFontAttributesSize, common.size);
        }
    }

    /// The colour of more than half of the text or else, deliberately, the one
    /// of the fewest characters.
    void findForeground() {
        if (findSpanning(attributeNames().foregroundColor)) return;
        ComparedColors colors;
        NumberMap numbers;
        std::vector<std::uint32_t> totals;
        const std::uint32_t half = text_.runs.back().end / 2;
        std::uint32_t start = 0;
        for (const FlatRun& run : text_.runs) {
            const TextAttributes& set = text_.palette.at(run.id);
            const std::uint32_t number = numbers(
                run.id, [&](std::uint32_t) { return colors.numberOf(comparedForeground(set)); });
            totals.resize(colors.count());
            totals[number] += run.end - start;
            start = run.end;
            if (totals[number] > half) {
                return add(attributeNames().foregroundColor, Value::boxed(comparedForeground(set)));
            }
        }
        const auto rarest = std::ranges::min_element(totals) - totals.begin();
        const auto color =
            Color::colorForString(colors.stringOf(static_cast<std::uint32_t>(rarest)));
        if (color) add(attributeNames().foregroundColor, Value::boxed(*color));
    }

    void findParagraphStyle() {
        if (findSpanning(attributeNames().paragraphStyle)) return;
        const ParagraphStyle& start = styleOf(*sets_.front());
        bool sameAlignment = true;
        bool sameLineHeight = true;
        for (const TextAttributes* set : sets_) {
            const ParagraphStyle& style = styleOf(*set);
            sameAlignment &= style.alignment == start.alignment;
            sameLineHeight &= style.minimumLineHeight == start.minimumLineHeight;
        }
        const bool hasLineHeight = sameLineHeight && start.minimumLineHeight > 0;
        if (!sameAlignment && !hasLineHeight) return;
        ParagraphStyle common;
        if (sameAlignment) common.alignment = start.alignment;
        if (hasLineHeight) {
            common.minimumLineHeight = start.minimumLineHeight;
            common.maximumLineHeight = start.minimumLineHeight;
        }
        add(attributeNames().paragraphStyle, Value::boxed(common));
    }

    /// The paragraph style in a set, or the default one.
    static const ParagraphStyle& styleOf(const TextAttributes& set) {
        static const ParagraphStyle& defaultStyle = *new ParagraphStyle;
        const ParagraphStyle* style = set.paragraphStyle();
        return style == nullptr ? defaultStyle : *style;
    }

    const FlatRuns& text_;
    std::vector<const TextAttributes*> sets_;
    std::vector<TextAttribute> found_;
};

/// The attributes of a text of one run, with what inspectors ask for besides.
TextAttributes attributesOfOnlyRun(TextAttributes attributes) {
    if (const Font* font = attributes.font()) {
        if (!font->familyName.empty()) {
            attributes = attributes.withAttribute(NSFontFamilyAttribute, font->familyName);
        }
        if (font->pointSize > 0) {
            attributes = attributes.withAttribute(kQZFontAttributesSize, font->pointSize);
        }
    }
    return attributes.withAttribute(attributeNames().foregroundColor,
                                    Value::boxed(comparedForeground(attributes)));
}

}  // namespace

std::optional<TextAttributes> RichText::commonAttributes() const {
    const FlatRuns text = cleanedRuns(*this);
    if (text.runs.empty()) return std::nullopt;
    if (text.runs.size() == 1) return attributesOfOnlyRun(text.palette.at(text.runs[0].id));
    return CommonAttributes(text).find();
}

}  // namespace QZCore
