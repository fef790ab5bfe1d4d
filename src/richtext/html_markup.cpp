#include "richtext/html_markup.h"

#include <algorithm>
#include <string>
#include <utility>

#include "foundation/base64.h"
#include "foundation/unit_search.h"

namespace QZCore {
namespace {

constexpr char16_t kReplacement = 0xFFFD;

/// Whether a unit does not always stand for itself, for a unit or lanes.
template <class Units>
auto mayNeedEscape(Units unit) {
    constexpr std::uint16_t kAmpersand = u'&';
    constexpr std::uint16_t kLess = u'<';
    constexpr std::uint16_t kGreater = u'>';
    constexpr std::uint16_t kQuote = u'"';
    constexpr std::uint16_t kBlank = u' ';
    constexpr std::uint16_t kDelete = 0x7F;
    constexpr std::uint16_t kLaterControls = 0xA0 - kDelete;
    constexpr std::uint16_t kSurrogates = 0xD800;
    constexpr std::uint16_t kSurrogatesMask = 0xF800;
    return (unit == kAmpersand) | (unit == kLess) | (unit == kGreater) | (unit == kQuote) |
           (unit < kBlank) | (static_cast<Units>(unit - kDelete) < kLaterControls) |
           ((unit & kSurrogatesMask) == kSurrogates);
}

/// Appends the character at `index` and gives the place behind it.
std::size_t appendEscapedAt(String& page, StringView text, std::size_t index) {
    const char16_t unit = text[index];
    switch (unit) {
        case u'&':
            page += u"&amp;";
            break;
        case u'<':
            page += u"&lt;";
            break;
        case u'>':
            page += u"&gt;";
            break;
        case u'"':
            page += u"&quot;";
            break;
        case u'\t':
        case u'\n':
            page += unit;
            break;
        default:
            if (isControl(unit)) {
                page += kReplacement;
                break;
            }
            const CodePoint character = codePointAt(text, index);
            character.length == 2 ? page += text.substr(index, 2) : page += kReplacement;
            return index + character.length;
    }
    return index + 1;
}

}  // namespace

void appendEscaped(String& page, StringView text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = findFirst(text, at, [](auto unit) { return mayNeedEscape(unit); });
        page += text.substr(at, end - at);
        at = end < text.size() ? appendEscapedAt(page, text, end) : end;
    }
}

String dataUri(const Image& image) {
    std::string bytes;
    bytes.reserve(image.data.size() / 3 * 4 + 4);
    appendBase64(bytes, image.data);
    String uri = u"data:";
    appendEscaped(uri, image.mediaType);
    uri += u";base64,";
    uri.append(bytes.begin(), bytes.end());
    return uri;
}

String markupAttribute(StringView name, StringView value) {
    if (value.empty()) return {};
    String attribute = u" " + String(name) + u"=\"";
    appendEscaped(attribute, value);
    return attribute + u"\"";
}

Element::Element(StringView name, StringView attributes)
    : start(u"<" + String(name) + String(attributes) + u">"), end(u"</" + String(name) + u">") {}

void NestedElements::change(const Elements& wanted) {
    const Elements& open = *std::exchange(open_, &wanted);
    if (&open == &wanted) return;
    const auto [left, kept] = std::ranges::mismatch(open, wanted);
    for (auto element = open.end(); element != left;) page_ += (--element)->end;
    for (auto element = kept; element != wanted.end(); ++element) page_ += element->start;
}

}  // namespace QZCore
