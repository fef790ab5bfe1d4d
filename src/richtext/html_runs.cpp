#include "richtext/html_runs.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "foundation/unit_search.h"
#include "richtext/css_writing.h"

namespace QZCore {
namespace {

/// The background, unless it shows nothing.
std::optional<Color> shownBackground(const TextAttributes& attributes) {
    const Color* color = attributes.backgroundColor();
    if (color == nullptr || !(color->alphaComponent() > 0)) return std::nullopt;
    return *color;
}

bool isBlack(const Color& color) {
    return color.redComponent() == 0 && color.greenComponent() == 0 && color.blueComponent() == 0 &&
           color.alphaComponent() == 1;
}

/// The colour that has to be named. Black is the reader's own text colour,
/// which is light in a dark scheme, and so has to be named on a background that
/// would stay light.
std::optional<Color> shownForeground(const TextAttributes& attributes) {
    constexpr double kOpaque = 0.5;
    const Color* color = attributes.foregroundColor();
    if (color != nullptr && !isBlack(*color)) return *color;
    const auto background = shownBackground(attributes);
    if (!background || background->alphaComponent() <= kOpaque) return std::nullopt;
    return Color::blackColor();
}

std::uint32_t traitsOf(const TextAttributes& attributes) {
    return attributes.font() == nullptr ? 0 : attributes.font()->traits;
}

/// A page says the same for all of its links.
StringView styleOfLinks(HtmlForm form) {
    return form == HtmlForm::Page ? u"" : u" style=\"color:inherit;text-decoration:none;\"";
}

/// Adds what raises or lowers text.
void addShifts(Elements& elements, const TextAttributes& attributes) {
    constexpr std::int32_t kMost = 8;
    const std::int32_t level =
        std::clamp(attributes.objectForKey(NSSuperscriptAttributeName).intValue(), -kMost, kMost);
    for (std::int32_t i = 0; i < std::abs(level); ++i) {
        elements.emplace_back(level > 0 ? u"sup" : u"sub");
    }
    const double offset = attributes.objectForKey(NSBaselineOffsetAttributeName).doubleValue();
    if (offset == 0) return;
    elements.emplace_back(u"span",
                          markupAttribute(u"style", u"vertical-align:" + cssLength(offset) + u";"));
}

}  // namespace

String RunMarkup::css(const TextAttributes& attributes, const TextAttributes& around) {
    String css;
    if (attributes.font() != nullptr && around.font() != nullptr) {
        const bool fixed = classifier_.isFixedWidth(*attributes.font());
        css += cssOfFont(*attributes.font(), *around.font(),
                         fixed ? FontKind::FixedWidth : FontKind::Proportional);
    }
    const auto color = shownForeground(attributes);
    if (color != shownForeground(around)) {
        css += u"color:" + (color ? cssColor(*color) : String(u"CanvasText")) + u";";
    }
    const auto background = shownBackground(attributes);
    if (background && background != shownBackground(around)) {
        css += u"background-color:" + cssColor(*background) + u";";
    }
    return css;
}

Elements RunMarkup::elementsFor(const TextAttributes& attributes, const TextAttributes& around) {
    Elements elements;
    if (const auto link = safeLink(attributes)) {
        const String target = markupAttribute(u"href", *link);
        elements.emplace_back(u"a", target + String(styleOfLinks(form_)));
    }
    const String look = css(attributes, around);
    if (!look.empty()) {
        const bool isMarked = look.find(u"background-color:") != String::npos;
        const bool isPlain = !isMarked || form_ == HtmlForm::Fragment;
        const StringView name = isPlain                          ? u"span"
                                : classifier_.isCode(attributes) ? u"code"
                                                                 : u"mark";
        elements.emplace_back(name, markupAttribute(u"style", look));
    }
    const std::uint32_t added = traitsOf(attributes) & ~traitsOf(around);
    if ((added & kFontBold) != 0) elements.emplace_back(u"strong");
    if ((added & kFontItalic) != 0) elements.emplace_back(u"em");
    if (attributes.underlineStyle() != 0) elements.emplace_back(u"u");
    if (attributes.strikethroughStyle() != 0) elements.emplace_back(u"s");
    addShifts(elements, attributes);
    return elements;
}

void RunMarkup::writeImage(const TextAttachment& attachment) {
    page_ += u"<img";
    if (attachment.image != nullptr) {
        page_ += u" src=\"" + dataUri(*attachment.image) + u"\"";
    } else if (const auto source = safeLink({{NSLinkAttributeName, attachment.source}})) {
        page_ += markupAttribute(u"src", *source);
    }
    // An image without an alternative text is announced by its address.
    page_ += u" alt=\"";
    appendEscaped(page_, attachment.alternativeText);
    page_ += u'"';
    if (attachment.width > 0 && attachment.height > 0) {
        page_ += markupAttribute(u"style", u"width:" + cssLength(attachment.width) + u";height:" +
                                               cssLength(attachment.height) + u";");
    }
    page_ += u'>';
}

void RunMarkup::writeText(StringView text) {
    constexpr char16_t kLineSeparator = u'\u2028';
    for (std::size_t at; (at = findUnit(text, 0, kLineSeparator)) < text.size();
         text.remove_prefix(at + 1)) {
        appendEscaped(page_, text.substr(0, at));
        page_ += u"<br>";
    }
    appendEscaped(page_, text);
}

void RunMarkup::writeText(StringView text, const TextAttachment& attachment) {
    for (std::size_t at; (at = text.find(kAttachmentCharacter)) != text.npos;
         text.remove_prefix(at + 1)) {
        writeText(text.substr(0, at));
        writeImage(attachment);
    }
    writeText(text);
}

void RunMarkup::write(Range range, const TextAttributes& around) {
    ElementsOfLooks& elements = elements_[around];
    for (const TextRunView run : text_.runs(range)) {
        const auto [known, isNew] = elements.try_emplace(run.attributes);
        if (isNew) known->second = elementsFor(run.attributes, around);
        nested_.change(known->second);
        const TextAttachment* attachment = run.attributes.attachment();
        const StringView text = StringView(units_).substr(run.range.location, run.range.length);
        attachment == nullptr ? writeText(text) : writeText(text, *attachment);
    }
    nested_.close();
}

}  // namespace QZCore
