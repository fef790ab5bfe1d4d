#include "QZCore/richtext/rich_text.h"
#include "richtext/flat_text.h"
#include "richtext/html_reader.h"

namespace QZCore {
namespace {

/// `text` with line feeds as its only line ends.
String withLineFeeds(StringView text) {
    String lines;
    lines.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isFollowed = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if (!isFollowed) lines += text[i] == u'\r' ? u'\n' : text[i];
    }
    return lines;
}

}  // namespace

std::optional<RichText> RichText::attributedStringWithHTML(StringView html) {
    constexpr StringView kPrefix =
        u"<style>\nhtml {font-family:-apple-system;}\na {text-decoration:none;}\n</style>\n";
    // No text that is read is so much longer than its HTML that it would not
    // fit the flat form.
    constexpr std::size_t kLongest = kFlatTextLimit / 8;
    if (html.size() > kLongest) return std::nullopt;
    // As UTF-8, in which there are no unpaired surrogates.
    const std::string document = toUTF8(String(kPrefix) + String(html));
    return HtmlReader().read(withLineFeeds(fromUTF8(document)));
}

}  // namespace QZCore
