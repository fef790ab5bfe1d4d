#include "QZCore/richtext/text_attributes.h"
#include "foundation/hash.h"

namespace QZCore {

bool TextAttachment::operator==(const TextAttachment& other) const {
    const bool sameImage = image == other.image ||
                           (image != nullptr && other.image != nullptr && *image == *other.image);
    return sameImage && width == other.width && height == other.height &&
           alternativeText == other.alternativeText && source == other.source;
}

std::size_t hashOf(const TextAttachment& attachment) {
    const std::size_t seed =
        hashCombine(hashText(attachment.alternativeText), std::hash<double>{}(attachment.width));
    return hashCombine(seed, hashText(attachment.source));
}

String descriptionOf(const TextAttachment& attachment) {
    return shortestString(attachment.width) + u" x " + shortestString(attachment.height) + u" " +
           attachment.alternativeText;
}

}  // namespace QZCore
