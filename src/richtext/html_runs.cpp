#include "richtext/html_runs.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

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
std::string styleOfLinks(HtmlForm form) {
    return form == HtmlForm::Page ? "" : " style=\"color:inherit;text-decoration:none;\"";
}

/// Adds what raises or lowers text.
void addShifts(std::vector<Element>& elements, const TextAttributes& attributes) {
    constexpr std::int32_t kMost = 8;
    const std::int32_t level =
        std::clamp(attributes.objectForKey(NSSuperscriptAttributeName).intValue(), -kMost, kMost);
    for (std::int32_t i = 0; i < std::abs(level); ++i) {
        elements.push_back({level > 0 ? "sup" : "sub", {}});
    }
    const double offset = attributes.objectForKey(NSBaselineOffsetAttributeName).doubleValue();
    if (offset == 0) return;
    elements.push_back(
        {"span", markupAttribute("style", u"vertical-align:" + cssLength(offset) + u";")});
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

std::vector<Element> RunMarkup::elementsFor(const TextAttributes& attributes,
                                            const TextAttributes& around) {
    std::vector<Element> elements;
    if (const auto link = safeLink(attributes)) {
        elements.push_back({"a", markupAttribute("href", *link) + styleOfLinks(form_)});
    }
    const String look = css(attributes, around);
    if (!look.empty()) {
        const bool isMarked = look.find(u"background-color:") != String::npos;
        const bool isPlain = !isMarked || form_ == HtmlForm::Fragment;
        const char* name = isPlain ? "span" : classifier_.isCode(attributes) ? "code" : "mark";
        elements.push_back({name, markupAttribute("style", look)});
    }
    const std::uint32_t added = traitsOf(attributes) & ~traitsOf(around);
    if ((added & kFontBold) != 0) elements.push_back({"strong", {}});
    if ((added & kFontItalic) != 0) elements.push_back({"em", {}});
    if (attributes.underlineStyle() != 0) elements.push_back({"u", {}});
    if (attributes.strikethroughStyle() != 0) elements.push_back({"s", {}});
    addShifts(elements, attributes);
    return elements;
}

void RunMarkup::writeImage(const TextAttachment& attachment) {
    page_ += "<img";
    if (attachment.image != nullptr) {
        page_ += " src=\"" + dataUri(*attachment.image) + "\"";
    } else if (const auto source = safeLink({{NSLinkAttributeName, attachment.source}})) {
        page_ += markupAttribute("src", *source);
    }
    // An image without an alternative text is announced by its address.
    page_ += " alt=\"" + escapedMarkup(attachment.alternativeText) + "\"";
    if (attachment.width > 0 && attachment.height > 0) {
        page_ += markupAttribute("style", u"width:" + cssLength(attachment.width) + u";height:" +
                                              cssLength(attachment.height) + u";");
    }
    page_ += ">";
}

void RunMarkup::writeText(StringView text) {
    constexpr char16_t kLineSeparator = u'\u2028';
    for (std::size_t at; (at = text.find(kLineSeparator)) != text.npos;
         text.remove_prefix(at + 1)) {
        page_ += escapedMarkup(text.substr(0, at)) + "<br>";
    }
    page_ += escapedMarkup(text);
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
    NestedElements elements(page_);
    for (const TextRunView run : text_.runs(range)) {
        elements.change(elementsFor(run.attributes, around));
        const TextAttachment* attachment = run.attributes.attachment();
        const String text = text_.string(run.range);
        attachment == nullptr ? writeText(text) : writeText(text, *attachment);
    }
    elements.change({});
}

}  // namespace QZCore
