// HTML: any bytes are read, and what was read is read again from the HTML that
// is written of it.
#include "QZCore/platform/fonts.h"
#include "QZCore/platform/images.h"
#include "QZCore/richtext/html.h"
#include "require.h"

using namespace QZCore;

namespace {

RichText read(StringView html) {
    const auto text = RichText::attributedStringWithHTML(html);
    require(text.has_value());
    return *text;
}

/// `text` without empty lines, one of which the writer takes for a part of the
/// list before it.
String withoutEmptyLines(const RichText& text) {
    String lines;
    for (const char16_t unit : text.string()) {
        if (unit != u'\n' || (!lines.empty() && lines.back() != u'\n')) lines += unit;
    }
    return lines;
}

/// The runs partition the text, and all of it has a font and a colour.
void requireWhole(const RichText& text) {
    std::size_t end = 0;
    for (const auto& run : text.runs()) {
        require(run.range.location == end && run.range.length > 0);
        require(run.attributes.font() != nullptr);
        require(run.attributes.foregroundColor() != nullptr);
        end = run.range.end();
    }
    require(end == text.length());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool prepared = (setSharedFontCatalog(makeInMemoryFontCatalog()), true);
    require(prepared);
    const RichText text = read(fromUTF8(textOf({data, size})));
    requireWhole(text);
    const HtmlForm form = size % 2 == 0 ? HtmlForm::Page : HtmlForm::Fragment;
    const RichText once = read(htmlFromRichText(text, {.form = form}));
    const RichText twice = read(htmlFromRichText(once, {.form = form}));
    requireWhole(twice);
    require(withoutEmptyLines(twice) == withoutEmptyLines(once));
    return 0;
}
