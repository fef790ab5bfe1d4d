// Images of HTML pages.
#pragma once

#include <memory>

#include "QZCore/richtext/text_attributes.h"
#include "richtext/html_look.h"
#include "richtext/html_tokenizer.h"

namespace QZCore {

/// Reads the images of one page.
class HtmlImages {
public:
    /// The attachment that the tag of an image stands for. The image of a
    /// "data:" address is decoded, until those of the page have had so many
    /// pixels that more would be an attack; nothing is fetched from any other
    /// address, which is kept as the source. A size that `look` leaves out is
    /// that of the image.
    [[nodiscard]] TextAttachment imageOf(const HtmlToken& tag, const HtmlLook& look);

private:
    [[nodiscard]] std::shared_ptr<const Image> imageAt(StringView dataAddress);

    double pixelsLeft_ = 80e6;
};

}  // namespace QZCore
