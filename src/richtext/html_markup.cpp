#include "richtext/html_markup.h"

#include <algorithm>

#include "foundation/base64.h"

namespace QZCore {
std::string escapedMarkup(StringView text) {
    String escaped;
    escaped.reserve(text.size());
    for (const char16_t unit : text) {
        switch (unit) {
            case u'&':
                escaped += u"&amp;";
                break;
            case u'<':
                escaped += u"&lt;";
                break;
            case u'>':
                escaped += u"&gt;";
                break;
            case u'"':
                escaped += u"&quot;";
                break;
            default:
                escaped += isControl(unit) && unit != u'\t' && unit != u'\n' ? u'\uFFFD' : unit;
        }
    }
    return toUTF8(escaped);
}

std::string dataUri(const Image& image) {
    std::string uri = "data:" + escapedMarkup(image.mediaType) + ";base64,";
    uri.reserve(uri.size() + image.data.size() / 3 * 4 + 4);
    appendBase64(uri, image.data);
    return uri;
}

std::string markupAttribute(std::string_view name, StringView value) {
    if (value.empty()) return {};
    return " " + std::string(name) + "=\"" + escapedMarkup(value) + "\"";
}

void NestedElements::change(std::vector<Element> wanted) {
    const auto [open, kept] = std::ranges::mismatch(open_, wanted);
    for (std::size_t i = open_.size(); i-- > static_cast<std::size_t>(open - open_.begin());) {
        page_ += "</" + open_[i].name + ">";
    }
    for (auto element = kept; element != wanted.end(); ++element) {
        page_ += "<" + element->name + element->attributes + ">";
    }
    open_ = std::move(wanted);
}

}  // namespace QZCore
