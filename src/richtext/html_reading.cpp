#include "QZCore/richtext/rich_text.h"
#include "foundation/unit_search.h"
#include "richtext/flat_text.h"
#include "richtext/html_reader.h"

namespace QZCore {
namespace {

/// Whether a unit may not stay as it is, for a unit or lanes.
template <class Units>
auto mayChange(Units unit) {
    constexpr std::uint16_t kReturn = u'\r';
    constexpr std::uint16_t kSurrogates = 0xD800;
    constexpr std::uint16_t kSurrogatesMask = 0xF800;
    return (unit == kReturn) | ((unit & kSurrogatesMask) == kSurrogates);
}

/// `html` with line feeds as its only line ends, and without the unpaired
/// surrogates that no file holds.
String asDocument(StringView html) {
    String document;
    document.reserve(html.size());
    for (std::size_t at = 0; at < html.size();) {
        const std::size_t end = findFirst(html, at, [](auto unit) { return mayChange(unit); });
        document += html.substr(at, end - at);
        if (end == html.size()) break;
        const CodePoint character = codePointAt(html, end);
        at = end + character.length;
        if (character.length == 2) {
            document += html.substr(end, 2);
        } else if (html[end] != u'\r') {
            document += u'\uFFFD';
        } else if (!html.substr(at).starts_with(u'\n')) {
            document += u'\n';
        }
    }
    return document;
}

}  // namespace

std::optional<RichText> RichText::attributedStringWithHTML(StringView html) {
    constexpr StringView kPrefix =
        u"<style>\nhtml {font-family:-apple-system;}\na {text-decoration:none;}\n</style>\n";
    // No text that is read is so much longer than its HTML that it would not
    // fit the flat form.
    constexpr std::size_t kLongest = kFlatTextLimit / 8;
    if (html.size() > kLongest) return std::nullopt;
    return HtmlReader().read(asDocument(String(kPrefix) + String(html)));
}

}  // namespace QZCore
