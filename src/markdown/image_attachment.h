// Images of a note as attachments.
#pragma once

#include <map>
#include <memory>

#include "QZCore/foundation/preferences.h"
#include "QZCore/platform/url_loading.h"
#include "QZCore/richtext/text_attributes.h"

namespace QZCore {

/// What stands in the text for an attachment.
inline constexpr StringView kAttachmentString{&kAttachmentCharacter, 1};

/// Fetches the images of one rendering. An image that occurs several times is
/// fetched each time, which the cache of the loader makes cheap, and kept once.
class ImageFetch {
public:
    /// Cache policy, time-out and logging come from the preferences.
    explicit ImageFetch(const Preferences& preferences);

    /// The attachment for an image whose link reads `text` and `target`. An
    /// image that cannot be had within the time-out is the caution image.
    /// Behind its last "|" the text may name a width and, behind an "x", a
    /// height; without a height the image keeps its proportions, and a size
    /// that is not greater than 0 counts as not named.
    [[nodiscard]] TextAttachment attachmentFor(StringView text, StringView target);

private:
    using ImagePointer = std::shared_ptr<const Image>;

    [[nodiscard]] ImagePointer fetch(const URL& url);
    [[nodiscard]] ImagePointer load(const UrlRequest& request);
    void logCacheUse();

    UrlCachePolicy cachePolicy_;
    double timeout_;
    bool logsCache_;
    std::shared_ptr<UrlLoader> loader_;
    std::map<String, ImagePointer> images_;  // the last of each URL
    ImagePointer caution_ = std::make_shared<const Image>(cautionImage());
};

}  // namespace QZCore
