#include "richtext/html_look.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "QZCore/richtext/font_manager.h"

namespace QZCore {
namespace {

constexpr int kRegular = 400;
constexpr int kBold = 700;
constexpr double kStepOfSizes = 1.2;
constexpr double kNaturalLineHeight = 1.2;

/// No length of text needs more, and sums of such stay exact.
double bounded(double points) {
    constexpr double kMost = 10000;
    return std::clamp(points, -kMost, kMost);
}

double boundedSize(double points) { return std::max(bounded(points), 0.5); }

template <class Meaning>
struct WordRow {
    StringView word;
    Meaning meaning;
};

template <class Meaning, std::size_t count>
std::optional<Meaning> meaningOf(const WordRow<Meaning> (&rows)[count], const CssValue& value) {
    const String* word = std::get_if<String>(&value);
    if (word == nullptr) return std::nullopt;
    const auto* row = std::ranges::find(rows, *word, &WordRow<Meaning>::word);
    return row == std::end(rows) ? std::nullopt : std::optional(row->meaning);
}

constexpr WordRow<double> kSizes[] = {
    {u"xx-small", 6.75}, {u"x-small", 7.5}, {u"small", 9.75},  {u"medium", 12},    {u"initial", 12},
    {u"large", 13.5},    {u"x-large", 18},  {u"xx-large", 24}, {u"xxx-large", 36},
};

constexpr WordRow<HtmlDisplay> kDisplays[] = {
    {u"none", HtmlDisplay::None},       {u"block", HtmlDisplay::Block},
    {u"flex", HtmlDisplay::Block},      {u"grid", HtmlDisplay::Block},
    {u"table", HtmlDisplay::Block},     {u"flow-root", HtmlDisplay::Block},
    {u"inline", HtmlDisplay::Inline},   {u"inline-block", HtmlDisplay::Inline},
    {u"contents", HtmlDisplay::Inline}, {u"list-item", HtmlDisplay::ListItem},
    {u"table-row", HtmlDisplay::Row},   {u"table-cell", HtmlDisplay::Cell},
};

constexpr WordRow<HtmlSpace> kSpaces[] = {
    {u"normal", HtmlSpace::Collapse},   {u"nowrap", HtmlSpace::Collapse},
    {u"pre", HtmlSpace::Keep},          {u"pre-wrap", HtmlSpace::Keep},
    {u"break-spaces", HtmlSpace::Keep}, {u"pre-line", HtmlSpace::KeepLines},
};

constexpr WordRow<TextAlignment> kAlignments[] = {
    {u"left", TextAlignment::Left},         {u"right", TextAlignment::Right},
    {u"center", TextAlignment::Center},     {u"middle", TextAlignment::Center},
    {u"justify", TextAlignment::Justified}, {u"start", TextAlignment::Natural},
    {u"end", TextAlignment::Right},         {u"initial", TextAlignment::Natural},
};

constexpr WordRow<WritingDirection> kDirections[] = {
    {u"ltr", WritingDirection::LeftToRight},
    {u"rtl", WritingDirection::RightToLeft},
    {u"auto", WritingDirection::Natural},
};

constexpr WordRow<bool> kSlants[] = {{u"italic", true}, {u"oblique", true}, {u"normal", false}};

constexpr WordRow<int> kShifts[] = {{u"super", 1}, {u"sub", -1}, {u"baseline", 0}};

/// The family that a list names: the first that is installed, or that of a
/// generic name; empty for the user's.
std::shared_ptr<const String> familyOf(const CssFamilies& families) {
    static constexpr std::array<StringView, 6> kUsers{u"-apple-system",      u"system-ui",
                                                      u"BlinkMacSystemFont", u"ui-sans-serif",
                                                      u"sans-serif",         u"initial"};
    static constexpr std::array<StringView, 7> kFixed{u"Menlo",
                                                      u"DejaVu Sans Mono",
                                                      u"Liberation Mono",
                                                      u"Noto Sans Mono",
                                                      u"Courier New",
                                                      u"Courier",
                                                      u"Mono"};
    static constexpr std::array<StringView, 6> kSerif{u"Times New Roman",  u"Times",
                                                      u"Liberation Serif", u"DejaVu Serif",
                                                      u"Noto Serif",       u"Serif"};
    const FontManager fonts = FontManager::shared();
    const auto firstInstalled = [&](const auto& names) {
        const auto at = std::ranges::find_if(
            names, [&](StringView name) { return fonts.isFamilyInstalled(name); });
        return at == names.end() ? nullptr : std::make_shared<const String>(*at);
    };
    for (const String& name : families) {
        if (fonts.isFamilyInstalled(name)) return std::make_shared<const String>(name);
        const String lower = inAsciiLowerCase(name);
        if (lower == u"monospace" || lower == u"ui-monospace") return firstInstalled(kFixed);
        if (lower == u"serif" || lower == u"ui-serif") return firstInstalled(kSerif);
        if (std::ranges::count(kUsers, StringView(name)) > 0) return nullptr;
    }
    return nullptr;
}

/// Sets what the winning declarations say.
class Applying {
public:
    Applying(HtmlLook& look, const HtmlLook& around, const HtmlLookContext& context)
        : look_(look), around_(around), context_(context) {}

    void apply(CssProperty property, const CssValue& value) {
        switch (property) {
            case CssProperty::Display:
                look_.display = meaningOf(kDisplays, value).value_or(look_.display);
                break;
            case CssProperty::FontFamily:
                if (const auto* list = std::get_if<CssFamilies>(&value)) {
                    look_.family = familyOf(*list);
                }
                break;
            case CssProperty::FontSize:
                applySize(value);
                break;
            case CssProperty::FontWeight:
                applyWeight(value);
                break;
            case CssProperty::FontStyle:
                look_.isItalic = meaningOf(kSlants, value).value_or(look_.isItalic);
                break;
            case CssProperty::Color:
                applyColor(value);
                break;
            case CssProperty::BackgroundColor:
                applyBackground(value);
                break;
            case CssProperty::TextDecoration:
                applyDecoration(value);
                break;
            case CssProperty::VerticalAlign:
                applyShift(value);
                break;
            default:
                applyToBlock(property, value);
        }
    }

private:
    /// The points of a length; nothing for a part of an unknown whole.
    [[nodiscard]] std::optional<double> pointsOf(const CssValue& value) const {
        const auto* length = std::get_if<CssLength>(&value);
        if (length == nullptr) return std::nullopt;
        switch (length->unit) {
            case CssUnit::Points:
                return bounded(length->number);
            case CssUnit::Em:
                return bounded(length->number * look_.fontSize);
            case CssUnit::RootEm:
                return bounded(length->number * context_.rootFontSize);
            case CssUnit::Number:
                return length->number == 0 ? std::optional(0.0) : std::nullopt;
            case CssUnit::Percent:
                break;
        }
        return std::nullopt;
    }

    void setPoints(double& target, const CssValue& value) const {
        target = pointsOf(value).value_or(target);
    }

    void applySize(const CssValue& value) {
        const auto* length = std::get_if<CssLength>(&value);
        const auto* word = std::get_if<String>(&value);
        double size = around_.fontSize;
        if (length != nullptr && length->unit == CssUnit::Percent) {
            size *= length->number / 100;
        } else if (length != nullptr) {
            size = pointsOf(value).value_or(size);
        } else if (const auto points = meaningOf(kSizes, value)) {
            size = *points;
        } else if (word != nullptr && *word == u"larger") {
            size *= kStepOfSizes;
        } else if (word != nullptr && *word == u"smaller") {
            size /= kStepOfSizes;
        }
        look_.fontSize = boundedSize(size);
    }

    void applyWeight(const CssValue& value) {
        const auto* length = std::get_if<CssLength>(&value);
        const auto* word = std::get_if<String>(&value);
        if (length != nullptr && length->unit == CssUnit::Number) {
            look_.weight = static_cast<int>(std::clamp(length->number, 1.0, 1000.0));
        } else if (word != nullptr && (*word == u"bold" || *word == u"bolder")) {
            look_.weight = kBold;
        } else if (word != nullptr && (*word == u"normal" || *word == u"lighter")) {
            look_.weight = kRegular;
        }
    }

    /// The words name the reader's own colour.
    void applyColor(const CssValue& value) {
        if (const auto* color = std::get_if<Color>(&value)) look_.color = *color;
        if (std::holds_alternative<String>(value)) look_.color.reset();
    }

    void applyBackground(const CssValue& value) {
        const auto* color = std::get_if<Color>(&value);
        const bool isArea = look_.display != HtmlDisplay::Inline && !context_.isTextBlock;
        if (color == nullptr || isArea || !(color->alphaComponent() > 0)) return;
        look_.background = *color;
        hasBackground_ = true;
    }

    /// A decoration reaches all that is within, whatever that says.
    void applyDecoration(const CssValue& value) {
        const auto* words = std::get_if<String>(&value);
        if (words == nullptr) return;
        const std::vector<StringView> parts = cssParts(*words);
        if (std::ranges::count(parts, StringView(u"underline")) > 0) look_.isUnderlined = true;
        if (std::ranges::count(parts, StringView(u"line-through")) > 0) {
            look_.isStruckThrough = true;
        }
    }

    void applyShift(const CssValue& value) {
        constexpr int kMostLevels = 100;
        const int level = around_.superscript + meaningOf(kShifts, value).value_or(0);
        look_.superscript = std::clamp(level, -kMostLevels, kMostLevels);
        look_.baselineOffset = bounded(around_.baselineOffset + pointsOf(value).value_or(0));
    }

    void applyToBlock(CssProperty property, const CssValue& value) {
        switch (property) {
            case CssProperty::TextAlign:
                look_.alignment = meaningOf(kAlignments, value).value_or(look_.alignment);
                break;
            case CssProperty::Direction:
                look_.direction = meaningOf(kDirections, value).value_or(look_.direction);
                break;
            case CssProperty::WhiteSpace:
                look_.space = meaningOf(kSpaces, value).value_or(look_.space);
                break;
            case CssProperty::ListStyle:
                if (const auto* word = std::get_if<String>(&value)) {
                    look_.listStyle = std::make_shared<const String>(*word);
                }
                break;
            case CssProperty::LineHeight:
                applyLineHeight(value);
                break;
            case CssProperty::TextIndent:
                setPoints(look_.textIndent, value);
                break;
            default:
                if (context_.box == HtmlBox::Block || isSpaceBehindList(property)) {
                    applyBox(property, value);
                }
        }
    }

    [[nodiscard]] bool isSpaceBehindList(CssProperty property) const {
        return context_.box == HtmlBox::List && property == CssProperty::MarginBottom;
    }

    void applyLineHeight(const CssValue& value) {
        const auto* length = std::get_if<CssLength>(&value);
        if (length == nullptr) {
            if (std::holds_alternative<String>(value)) look_.lineHeight = {0, CssUnit::Number};
        } else if (length->unit == CssUnit::Number) {
            look_.lineHeight = {bounded(std::max(length->number, 0.0)), CssUnit::Number};
        } else if (length->unit == CssUnit::Percent) {
            look_.lineHeight.number = bounded(length->number / 100 * look_.fontSize);
            look_.lineHeight.unit = CssUnit::Points;
        } else {
            look_.lineHeight = {std::max(pointsOf(value).value_or(0), 0.0), CssUnit::Points};
        }
    }

    void applyBox(CssProperty property, const CssValue& value) {
        const double points = pointsOf(value).value_or(0);
        const bool isInline = look_.display == HtmlDisplay::Inline;
        // Within a background it is a part of the area.
        const double padding = isInline || hasBackground_ ? 0 : points;
        switch (property) {
            case CssProperty::MarginTop:
                look_.spaceBefore = std::max(points, 0.0);
                break;
            case CssProperty::MarginBottom:
                look_.spaceAfter = bounded(look_.spaceAfter + std::max(points, 0.0));
                break;
            case CssProperty::PaddingBottom:
                look_.spaceAfter = bounded(look_.spaceAfter + std::max(padding, 0.0));
                break;
            case CssProperty::MarginLeft:
                if (!isInline) look_.leftIndent = bounded(look_.leftIndent + points);
                break;
            case CssProperty::MarginRight:
                if (!isInline) look_.rightIndent = bounded(look_.rightIndent + points);
                break;
            case CssProperty::PaddingLeft:
                look_.leftIndent = bounded(look_.leftIndent + padding);
                break;
            case CssProperty::PaddingRight:
                look_.rightIndent = bounded(look_.rightIndent + padding);
                break;
            case CssProperty::MinHeight:
                look_.minHeight = points;
                break;
            case CssProperty::MaxWidth:
                look_.maxWidth = points;
                break;
            case CssProperty::Width:
                look_.width = points;
                break;
            case CssProperty::Height:
                look_.height = points;
                break;
            default:
                break;
        }
    }

    HtmlLook& look_;
    const HtmlLook& around_;
    const HtmlLookContext& context_;
    bool hasBackground_ = false;
};

}  // namespace

HtmlLook htmlLook(const HtmlLook& around, const std::vector<const CssDeclaration*>& declarations,
                  const HtmlLookContext& context) {
    constexpr std::size_t kProperties = static_cast<std::size_t>(CssProperty::Height) + 1;
    std::array<const CssDeclaration*, kProperties> winners{};
    for (const bool isImportant : {false, true}) {
        for (const CssDeclaration* declaration : declarations) {
            if (declaration->isImportant != isImportant) continue;
            winners[static_cast<std::size_t>(declaration->property)] = declaration;
        }
    }
    HtmlLook look{around, HtmlDisplay::Inline, 0, 0, 0, 0, 0, 0};
    Applying applying(look, around, context);
    // Other lengths are measured by the size of the font.
    if (const CssDeclaration* size = winners[static_cast<std::size_t>(CssProperty::FontSize)]) {
        applying.apply(CssProperty::FontSize, size->value);
    }
    for (const CssDeclaration* winner : winners) {
        const bool isSize = winner != nullptr && winner->property == CssProperty::FontSize;
        if (winner != nullptr && !isSize) applying.apply(winner->property, winner->value);
    }
    look.isHidden = around.isHidden || look.display == HtmlDisplay::None;
    return look;
}

ParagraphStyle paragraphStyleOf(const HtmlLook& look) {
    ParagraphStyle style{
        .alignment = look.alignment,
        .paragraphSpacingBefore = look.spaceBefore,
        .paragraphSpacing = look.spaceAfter,
        .headIndent = look.leftIndent,
        .firstLineHeadIndent = look.leftIndent + look.textIndent,
        .tailIndent = look.rightIndent > 0 ? -look.rightIndent : look.maxWidth,
        .baseWritingDirection = look.direction,
    };
    if (look.lineHeight.unit == CssUnit::Points) {
        style.minimumLineHeight = style.maximumLineHeight = look.lineHeight.number;
    } else {
        style.lineHeightMultiple = look.lineHeight.number / kNaturalLineHeight;
    }
    return style;
}

}  // namespace QZCore
