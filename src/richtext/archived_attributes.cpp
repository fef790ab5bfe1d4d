#include "richtext/archived_attributes.h"

#include "QZCore/platform/fonts.h"
#include "QZCore/richtext/text_attributes.h"
#include "model/content_reader.h"

namespace QZCore {
namespace {

// The keys below are stored in documents.

// ---- Fonts ----

void encodeFont(const Font& font, ArchiveEncoder& coder) {
    coder.encodeContent(font.familyName, u"family");
    coder.encodeContent(font.faceName, u"face");
    coder.encodeContent(font.pointSize, u"size");
    coder.encodeContent(font.traits, u"traits");
    coder.encodeContent(font.weight, u"weight");
}

std::optional<Font> decodeFont(ArchiveDecoder& coder) {
    constexpr int kHeaviest = 15;
    ContentReader from(coder);
    Font font{.familyName = from.text(u"family"),
              .faceName = from.text(u"face"),
              .pointSize = from.real(u"size"),
              .traits = static_cast<std::uint32_t>(from.integer(u"traits", 0, UINT32_MAX)),
              .weight = static_cast<int>(from.integer(u"weight", 0, kHeaviest))};
    return from.ifRight(std::move(font));
}

// ---- Images ----

void encodeImage(const Image& image, ArchiveEncoder& coder) {
    coder.encodeContent(image.data, u"data");
    coder.encodeContent(image.mediaType, u"mediaType");
    coder.encodeContent(image.width, u"width");
    coder.encodeContent(image.height, u"height");
    coder.encodeContent(image.isCaution, u"isCaution");
}

std::optional<Image> decodeImage(ArchiveDecoder& coder) {
    ContentReader from(coder);
    Image image{.data = from.data(u"data"),
                .mediaType = from.text(u"mediaType"),
                .width = from.real(u"width"),
                .height = from.real(u"height"),
                .isCaution = from.boolean(u"isCaution")};
    return from.ifRight(std::move(image));
}

// ---- Attachments ----

void encodeAttachment(const TextAttachment& attachment, ArchiveEncoder& coder) {
    const auto& image = attachment.image;
    coder.encodeContent(image == nullptr ? Value() : Value::boxed(*image), u"image");
    coder.encodeContent(attachment.width, u"width");
    coder.encodeContent(attachment.height, u"height");
    coder.encodeContent(attachment.alternativeText, u"alternativeText");
    coder.encodeContent(attachment.source, u"source");
}

std::optional<TextAttachment> decodeAttachment(ArchiveDecoder& coder) {
    ContentReader from(coder);
    TextAttachment attachment;
    if (auto image = from.boxed<Image>(u"image")) {
        attachment.image = std::make_shared<const Image>(*std::move(image));
    }
    attachment.width = from.real(u"width");
    attachment.height = from.real(u"height");
    attachment.alternativeText = from.text(u"alternativeText");
    attachment.source = from.text(u"source");
    return from.ifRight(std::move(attachment));
}

}  // namespace

std::vector<ArchivedClass> archivedAttributeValues() {
    return {archivedBox<Font, encodeFont, decodeFont>(u"Font"), archivedColor(),
            archivedParagraphStyle(),
            archivedBox<TextAttachment, encodeAttachment, decodeAttachment>(
                u"TextAttachment", {archivedBox<Image, encodeImage, decodeImage>(u"Image")})};
}

}  // namespace QZCore
