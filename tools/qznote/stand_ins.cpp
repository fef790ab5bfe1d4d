#include "stand_ins.h"

namespace qznote {

using namespace QZCore;

String withImagesNamed(StringView text, const TextAttributes& attributes) {
    const TextAttachment* attachment = attributes.attachment();
    if (attachment == nullptr) return String(text);
    const StringView alternative = attachment->alternativeText;
    const String name = u"[" + String(alternative.empty() ? u"image" : alternative) + u" " +
                        shortestString(attachment->width) + u"x" +
                        shortestString(attachment->height) + u"]";
    String named;
    for (const char16_t unit : text) {
        named += unit == kAttachmentCharacter ? StringView(name) : StringView(&unit, 1);
    }
    return named;
}

String plainText(const RichText& text, Range range) {
    String plain;
    for (const TextRunView run : text.runs(range)) {
        plain += withImagesNamed(text.string(run.range), run.attributes);
    }
    return plain;
}

RichText withLineFeeds(const RichText& text) {
    constexpr char16_t kLineSeparator = u'\u2028';
    const String units = text.string();
    RichText lines = text;
    for (std::size_t at = 0; (at = units.find(kLineSeparator, at)) != units.npos; ++at) {
        lines.replaceCharactersInRange({at, 1}, u"\n");
    }
    return lines;
}

String withVisibleControls(StringView text) {
    constexpr char16_t kSymbols = 0x2400;
    constexpr char16_t kDelete = 0x7F;
    String visible(text);
    for (char16_t& unit : visible) {
        if (unit == u'\t' || !isControl(unit)) continue;
        unit = unit < u' '       ? static_cast<char16_t>(kSymbols + unit)
               : unit == kDelete ? u'\u2421'
                                 : u'\uFFFD';
    }
    return visible;
}

}  // namespace qznote
