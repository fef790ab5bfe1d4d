// Documents with their images: what reads and writes whole files.
#include "QZCore/richtext/rtf.h"
#include "codecs/zip_archive.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace QZCore {
namespace {

/// The name of the document among its images.
constexpr std::string_view kDocumentName = "TXT.rtf";

/// The document, at the top or in the folder that was archived.
RtfFiles::const_iterator documentIn(const RtfFiles& files) {
    auto file = files.begin();
    for (; file != files.end(); ++file) {
        const std::string_view path = file->first;
        if (path.substr(path.rfind('/') + 1) == kDocumentName) break;
    }
    return file;
}

}  // namespace

Data RichText::RTF() const {
    EmbeddedRtfPictures pictures;
    return rtfDocument(*this, pictures);
}

Data RichText::RTFD() const {
    BundledRtfPictures pictures;
    ZipWriter archive;
    archive.add(kDocumentName, rtfDocument(*this, pictures));
    for (const BundledRtfPictures::File& file : pictures.files()) {
        archive.add(file.name, file.image->data);
    }
    return archive.finish();
}

Data RichText::RTForRTFD() const { return numberOfAttachments() > 0 ? RTFD() : RTF(); }

std::optional<RichText> richTextFromRTF(DataView data) { return readRtf(textOf(data), {}); }

std::optional<RichText> richTextFromRTFD(DataView data) {
    RtfFiles files = filesInZip(data);
    const auto document = documentIn(files);
    if (document == files.end()) return std::nullopt;
    const std::string folder =
        document->first.substr(0, document->first.size() - kDocumentName.size());
    return readRtf(textOf(document->second), {.files = &files, .folder = folder});
}

}  // namespace QZCore
