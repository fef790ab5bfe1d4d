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

/// Fetches the images of one rendering, each source once.
class ImageFetch {
public:
    /// Cache policy, time-out and logging come from the preferences.
    explicit ImageFetch(const Preferences& preferences);

    /// The attachment for an image whose link reads `text` and `target`. An
    /// image that cannot be had is the caution image. Behind its last "|" the
    /// text may name a width and, behind an "x", a height; without a height the
    /// image keeps its proportions, and a size that is not greater than 0
    /// counts as not named.
    [[nodiscard]] TextAttachment attachmentFor(StringView text, StringView target);

private:
    [[nodiscard]] std::shared_ptr<const Image> fetch(const URL& url);
    [[nodiscard]] std::optional<Image> load(const UrlRequest& request);
    void logCacheUse();

    UrlRequest request_;
    bool logsCache_;
    std::shared_ptr<UrlLoader> loader_;
    std::map<String, std::shared_ptr<const Image>> fetched_;
};

}  // namespace QZCore
