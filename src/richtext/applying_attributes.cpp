#include <algorithm>
#include <optional>

#include "QZCore/richtext/font_attributes.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/rich_text.h"
#include "richtext/attribute_names.h"
#include "richtext/distinct_sets.h"
#include "richtext/store.h"

namespace QZCore {
namespace {

bool isDecoration(const AttributeName& name) {
    return name == NSUnderlineStyleAttributeName || name == NSStrikethroughStyleAttributeName ||
           name == NSBaselineOffsetAttributeName;
}

/// Whether a run of `own` was given another colour than the text has in common.
bool isColoredApart(const Value& own, const Value& common) {
    const Color* ownColor = own.boxedValue<Color>();
    const Color* commonColor = common.boxedValue<Color>();
    return ownColor != nullptr && commonColor != nullptr &&
           !ownColor->isEqualByString(*commonColor);
}

/// Applies attributes to the runs of a range that may deviate from each other.
class Restyling {
public:
    /// `range` lists the sets of the range, `common` holds what the whole text
    /// has in common.
    Restyling(const TextAttributes& attributes, const std::vector<const TextAttributes*>& range,
              TextAttributes common)
        : attributes_(attributes), common_(std::move(common)) {
        for (const TextAttribute& attribute : attributes.entries()) {
            varies_.push_back(!haveSameValue(range, attribute.name.text()));
        }
    }

    [[nodiscard]] TextAttributes applied(TextAttributes run) const {
        for (std::size_t i = 0; i < varies_.size(); ++i) {
            const auto& [name, value] = attributes_.entries()[i];
            if (name == kQZFontAttributesSize) {
                run = resized(run, value.doubleValue());
                continue;
            }
            const Value* own = run.find(name.text());
            const bool deviates = own != nullptr && varies_[i];
            run = run.withAttribute(name, deviates ? besideDeviations(name, *own, value) : value);
        }
        return run;
    }

private:
    [[nodiscard]] TextAttributes resized(const TextAttributes& run, double size) const {
        const Font* font = run.font();
        if (font == nullptr || font->pointSize == size) return run;
        return run.withAttribute(attributeNames().font,
                                 Value::boxed(fonts_.convertFontToSize(*font, size)));
    }

    /// What a run with the value `own` takes when other runs have others.
    [[nodiscard]] Value besideDeviations(const AttributeName& name, const Value& own,
                                         const Value& value) const {
        if (name == attributeNames().font) return withTraitsOf(own, value);
        if (isDecoration(name)) return own;
        const bool keepsOwn =
            (name == attributeNames().foregroundColor &&
             isColoredApart(own, common_.objectForKey(name.text()))) ||
            (name == attributeNames().paragraphStyle && own != common_.objectForKey(name.text()));
        return keepsOwn ? own : value;
    }

    [[nodiscard]] Value withTraitsOf(const Value& own, const Value& value) const {
        const Font* ownFont = own.boxedValue<Font>();
        const Font* font = value.boxedValue<Font>();
        if (ownFont == nullptr || font == nullptr) return value;
        const bool isBold = (ownFont->traits & kFontBold) != 0;
        const bool isItalic = (ownFont->traits & kFontItalic) != 0;
        const Font weighted =
            fonts_.convertFontToHaveTrait(*font, isBold ? kFontBold : kFontUnbold);
        return Value::boxed(
            fonts_.convertFontToHaveTrait(weighted, isItalic ? kFontItalic : kFontUnitalic));
    }

    const TextAttributes& attributes_;
    TextAttributes common_;
    std::vector<bool> varies_;  // whether the range has several values, by attribute
    FontManager fonts_ = FontManager::shared();
};

}  // namespace

void RichText::applyFontAttributes(const TextAttributes& attributes, Range toRange) {
    const Range range = clampedRange(toRange, length());
    if (attributes.empty() || range.length == 0) return;
    const RichTextEditing editing(*this);
    const FlatRuns before = FlatTextAccess::flattenedRuns(*this, range);
    const Restyling restyling(attributes, distinctSets(before),
                              commonAttributes().value_or(TextAttributes()));
    changeAttributes(range, [&](const TextAttributes& run) { return restyling.applied(run); });
    if (attributes.find(NSBackgroundColorAttributeName) == nullptr) {
        const auto common = commonAttributes();
        if (common && common->find(NSBackgroundColorAttributeName) != nullptr) {
            removeAttribute(NSBackgroundColorAttributeName, range);
        }
    }
    fixAttributesInRange(range);
}

void RichText::applyFontAttributes(const TextAttributes& attributes) {
    applyFontAttributes(attributes, {0, length()});
}

}  // namespace QZCore
