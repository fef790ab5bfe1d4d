#include "html_runs.h"

#include <algorithm>
#include <optional>

#include "css.h"
#include "safe_link.h"

namespace qznote {
namespace {

using namespace QZCore;

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
        elements.push_back({"a", markupAttribute("href", *link)});
    }
    const String look = css(attributes, around);
    if (!look.empty()) {
        const bool isMarked = look.find(u"background-color:") != String::npos;
        const char* name = !isMarked ? "span" : classifier_.isCode(attributes) ? "code" : "mark";
        elements.push_back({name, markupAttribute("style", look)});
    }
    const std::uint32_t added = traitsOf(attributes) & ~traitsOf(around);
    if ((added & kFontBold) != 0) elements.push_back({"strong", {}});
    if ((added & kFontItalic) != 0) elements.push_back({"em", {}});
    if (attributes.underlineStyle() != 0) elements.push_back({"u", {}});
    if (attributes.strikethroughStyle() != 0) elements.push_back({"s", {}});
    return elements;
}

void RunMarkup::writeImage(const TextAttachment& attachment) {
    page_ += "<img";
    if (attachment.image != nullptr) page_ += " src=\"" + dataUri(*attachment.image) + "\"";
    // An image without an alternative text is announced by its address.
    page_ += " alt=\"" + escapedMarkup(attachment.alternativeText) + "\"";
    page_ += markupAttribute("style", u"width:" + cssLength(attachment.width) + u";height:" +
                                          cssLength(attachment.height) + u";");
    page_ += ">";
}

void RunMarkup::writeText(StringView text, const TextAttachment* attachment) {
    while (attachment != nullptr) {
        const std::size_t at = text.find(kAttachmentCharacter);
        if (at == StringView::npos) break;
        page_ += escapedMarkup(text.substr(0, at));
        writeImage(*attachment);
        text.remove_prefix(at + 1);
    }
    page_ += escapedMarkup(text);
}

void RunMarkup::write(Range range, const TextAttributes& around) {
    NestedElements elements(page_);
    for (const TextRunView run : text_.runs(range)) {
        elements.change(elementsFor(run.attributes, around));
        writeText(text_.string(run.range), run.attributes.attachment());
    }
    elements.change({});
}

}  // namespace qznote
