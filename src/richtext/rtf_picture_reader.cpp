#include "richtext/rtf_picture_reader.h"

#include <algorithm>
#include <utility>

#include "foundation/hexadecimal.h"

#include "richtext/rtf_units.h"

namespace QZCore {
namespace {

constexpr double kPercent = 100;

/// The caution image needs no decoder, and is known again as what it is.
std::shared_ptr<const Image> decoded(DataView bytes) {
    const Image& caution = cautionImage();
    if (std::ranges::equal(bytes, caution.data)) return std::make_shared<const Image>(caution);
    auto image = sharedImageDecoder()->decode(bytes);
    return image ? std::make_shared<const Image>(*std::move(image)) : nullptr;
}

}  // namespace

void RtfPictureReader::start() {
    bytes_.clear();
    openDigit_.reset();
    fileName_.clear();
    attachment_ = {};
    percentWide_ = percentHigh_ = kPercent;
}

void RtfPictureReader::word(std::string_view name, RtfNumber number) {
    const double points = number.length() / kTwipsPerPoint;
    if (name == "picwgoal" || name == "width") attachment_.width = points;
    if (name == "pichgoal" || name == "height") attachment_.height = points;
    if (name == "picscalex" && number.value > 0) percentWide_ = number.length();
    if (name == "picscaley" && number.value > 0) percentHigh_ = number.length();
}

void RtfPictureReader::hexadecimal(StringView digits) {
    for (const char16_t unit : digits) {
        const auto digit = hexDigitValue(unit);
        if (!digit) continue;
        if (openDigit_) {
            bytes_.push_back(static_cast<std::uint8_t>(*openDigit_ << 4 | *digit));
            openDigit_.reset();
        } else {
            openDigit_ = digit;
        }
    }
}

void RtfPictureReader::binary(std::string_view bytes) {
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
}

void RtfPictureReader::endProperty() {
    if (propertyName_ == u"wzDescription") attachment_.alternativeText = propertyValue_;
    if (propertyName_ == u"pibName") attachment_.source = propertyValue_;
}

TextAttachment RtfPictureReader::finishEmbedded() { return attachmentOf(decoded(bytes_)); }

TextAttachment RtfPictureReader::finishFile() {
    return attachmentOf(imageInFile(toUTF8(trimmedOfWhitespace(fileName_))));
}

/// A size that is not told is that of the image.
TextAttachment RtfPictureReader::attachmentOf(ImagePointer image) {
    TextAttachment attachment = std::exchange(attachment_, {});
    if (image != nullptr) {
        if (!(attachment.width > 0)) attachment.width = image->width;
        if (!(attachment.height > 0)) attachment.height = image->height;
    }
    attachment.width *= percentWide_ / kPercent;
    attachment.height *= percentHigh_ / kPercent;
    attachment.image = std::move(image);
    return attachment;
}

RtfPictureReader::ImagePointer RtfPictureReader::imageInFile(const std::string& name) {
    if (surroundings_.files == nullptr) return nullptr;
    const auto file = surroundings_.files->find(std::string(surroundings_.folder) + name);
    if (file == surroundings_.files->end()) return nullptr;
    const auto [at, isNew] = images_.try_emplace(name);
    if (isNew) at->second = decoded(file->second);
    return at->second;
}

}  // namespace QZCore
