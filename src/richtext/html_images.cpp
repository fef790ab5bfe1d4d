#include "richtext/html_images.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "foundation/base64.h"
#include "foundation/hexadecimal.h"

namespace QZCore {
namespace {

/// `text` as UTF-8 with its percent-encoded bytes decoded.
std::string percentDecoded(StringView text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const auto byte = text.front() == u'%' ? hexByte(text.substr(1)) : std::nullopt;
        if (byte) bytes += static_cast<char>(*byte);
        const std::size_t plain = byte ? 0 : std::min(text.find(u'%', 1), text.size());
        bytes += toUTF8(text.substr(0, plain));
        text.remove_prefix(byte ? 3 : plain);
    }
    return bytes;
}

/// The bytes of a "data:" address behind "data:".
std::optional<Data> bytesOfAddress(StringView address) {
    constexpr StringView kBase64 = u";base64";
    const std::size_t comma = address.find(u',');
    if (comma == StringView::npos) return std::nullopt;
    const StringView type = trimmedOfWhitespace(address.substr(0, comma));
    const std::string bytes = percentDecoded(address.substr(comma + 1));
    const bool isBase64 =
        type.size() >= kBase64.size() &&
        equalsIgnoringAsciiCase(type.substr(type.size() - kBase64.size()), kBase64);
    if (isBase64) return base64Decoded(bytes);
    const DataView view = bytesOf(bytes);
    return Data(view.begin(), view.end());
}

/// One length that is given brings the other.
void applySize(TextAttachment& attachment, const HtmlLook& look) {
    attachment.width = look.width;
    attachment.height = look.height;
    if (attachment.image == nullptr || (look.width > 0 && look.height > 0)) return;
    const double ratio = attachment.image->width / attachment.image->height;
    if (look.width > 0) {
        attachment.height = look.width / ratio;
    } else if (look.height > 0) {
        attachment.width = look.height * ratio;
    } else {
        attachment.width = attachment.image->width;
        attachment.height = attachment.image->height;
    }
}

}  // namespace

std::shared_ptr<const Image> HtmlImages::imageAt(StringView dataAddress) {
    if (pixelsLeft_ <= 0) return nullptr;
    const auto bytes = bytesOfAddress(dataAddress);
    if (!bytes) return nullptr;
    auto image = sharedImageDecoder()->decode(*bytes);
    if (!image) return nullptr;
    pixelsLeft_ -= image->width * image->height;
    return std::make_shared<const Image>(std::move(*image));
}

TextAttachment HtmlImages::imageOf(const HtmlToken& tag, const HtmlLook& look) {
    constexpr StringView kScheme = u"data:";
    TextAttachment attachment;
    if (const String* alternative = tag.find(u"alt")) attachment.alternativeText = *alternative;
    const String* source = tag.find(u"src");
    const StringView address =
        source == nullptr ? StringView() : trimmedOfWhitespaceAndNewlines(*source);
    if (!equalsIgnoringAsciiCase(address.substr(0, kScheme.size()), kScheme)) {
        attachment.source = address;
    } else {
        attachment.image = imageAt(address.substr(kScheme.size()));
    }
    applySize(attachment, look);
    return attachment;
}

}  // namespace QZCore
