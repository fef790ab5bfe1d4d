#include "richtext/rtf_pictures.h"

#include <algorithm>
#include <array>

namespace QZCore {
namespace {

struct MediaType {
    StringView name;
    std::string_view extension;
    std::string_view word;  // none when it cannot stand in a document
};

constexpr std::array kMediaTypes{
    MediaType{u"image/png", ".png", "pngblip"}, MediaType{u"image/jpeg", ".jpg", "jpegblip"},
    MediaType{u"image/gif", ".gif", ""},        MediaType{u"image/bmp", ".bmp", ""},
    MediaType{u"image/tiff", ".tiff", ""},      MediaType{u"image/svg+xml", ".svg", ""},
};

const MediaType* mediaTypeOf(const TextAttachment& attachment) {
    if (attachment.image == nullptr) return nullptr;
    const auto* type =
        std::ranges::find(kMediaTypes, attachment.image->mediaType, &MediaType::name);
    return type == kMediaTypes.end() ? nullptr : type;
}

void writeProperty(std::string_view name, StringView value, RtfOutput& out) {
    if (value.empty()) return;
    out.mark("{\\sp{\\sn ");
    out.mark(name);
    out.mark("}{");
    out.word("sv");
    out.text(value);
    out.mark("}}");
}

/// What tells about a picture beside its size.
void writeProperties(const TextAttachment& attachment, RtfOutput& out) {
    if (attachment.alternativeText.empty() && attachment.source.empty()) return;
    out.openIgnorableGroup("picprop");
    writeProperty("wzDescription", attachment.alternativeText, out);
    writeProperty("pibName", attachment.source, out);
    out.closeGroup();
}

void writeHex(DataView bytes, RtfOutput& out) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    constexpr std::size_t kBytesPerLine = 64;
    std::string line;
    for (std::size_t at = 0; at < bytes.size(); at += kBytesPerLine) {
        line = "\n";
        for (const std::uint8_t byte :
             bytes.subspan(at, std::min(kBytesPerLine, bytes.size() - at))) {
            line += {kDigits[byte >> 4], kDigits[byte & 15U]};
        }
        out.mark(line);
    }
}

}  // namespace

RtfPictures::~RtfPictures() = default;

void EmbeddedRtfPictures::write(const TextAttachment& attachment, RtfOutput& out) {
    const MediaType* type = mediaTypeOf(attachment);
    if (type == nullptr || type->word.empty()) return out.text(attachment.alternativeText);
    out.openGroup();
    out.word("pict");
    writeProperties(attachment, out);
    out.word(type->word);
    out.word("picwgoal", twipsOf(attachment.width));
    out.word("pichgoal", twipsOf(attachment.height));
    writeHex(attachment.image->data, out);
    out.closeGroup();
}

void BundledRtfPictures::write(const TextAttachment& attachment, RtfOutput& out) {
    if (mediaTypeOf(attachment) == nullptr) return out.text(attachment.alternativeText);
    out.openGroup();
    out.openGroup();
    out.word("NeXTGraphic");
    out.text(fromUTF8(nameOf(attachment.image) + " "));
    out.word("width", twipsOf(attachment.width));
    out.word("height", twipsOf(attachment.height));
    writeProperties(attachment, out);
    // The character that stands for the picture.
    out.mark("}\\'ac}");
}

const std::string& BundledRtfPictures::nameOf(const std::shared_ptr<const Image>& image) {
    const auto [at, isNew] = numbers_.try_emplace(image.get(), files_.size());
    if (isNew) {
        const auto* type = std::ranges::find(kMediaTypes, image->mediaType, &MediaType::name);
        std::string name = "image-" + std::to_string(files_.size() + 1);
        files_.push_back({name.append(type->extension), image});
    }
    return files_[at->second].name;
}

}  // namespace QZCore
