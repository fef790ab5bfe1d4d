#include "html_markup.h"

#include <algorithm>

#include "stand_ins.h"

namespace qznote {
namespace {

using namespace QZCore;

void appendBase64(std::string& text, DataView bytes) {
    constexpr std::string_view kDigits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t kGroup = 3;
    for (std::size_t at = 0; at < bytes.size(); at += kGroup) {
        const std::size_t count = std::min(kGroup, bytes.size() - at);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < kGroup; ++i) bits = bits << 8 | (i < count ? bytes[at + i] : 0);
        for (std::size_t i = 0; i <= kGroup; ++i) {
            text += i <= count ? kDigits[bits >> (18 - 6 * i) & 63] : '=';
        }
    }
}

}  // namespace

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

}  // namespace qznote
