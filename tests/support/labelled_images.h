// Images that need no decoder of the platform.
#pragma once

#include <memory>
#include <string>

#include "QZCore/platform/images.h"

namespace QZCore::testing {

/// While this lives, "PNG:" or "GIF:" and anything behind it is an image of
/// that type, 16 points wide and 8 high.
class LabelledImages {
public:
    LabelledImages() : before_(setSharedImageDecoder(std::make_shared<Decoder>())) {}
    ~LabelledImages() { setSharedImageDecoder(before_); }
    LabelledImages(const LabelledImages&) = delete;
    LabelledImages& operator=(const LabelledImages&) = delete;

    [[nodiscard]] static std::shared_ptr<const Image> image(std::string_view bytes) {
        return std::make_shared<const Image>(*Decoder().decode(bytesOf(bytes)));
    }

private:
    struct Decoder final : ImageDecoder {
        [[nodiscard]] std::optional<Image> decode(DataView bytes) const override {
            const std::string_view text = textOf(bytes);
            const bool isPng = text.starts_with("PNG:");
            if (!isPng && !text.starts_with("GIF:")) return std::nullopt;
            return Image{{bytes.begin(), bytes.end()}, isPng ? u"image/png" : u"image/gif", 16, 8};
        }
    };

    std::shared_ptr<const ImageDecoder> before_;
};

}  // namespace QZCore::testing
