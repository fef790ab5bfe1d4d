// Rich text as an RTF document.
#pragma once

#include "QZCore/foundation/data.h"
#include "QZCore/richtext/rich_text.h"
#include "richtext/rtf_pictures.h"

namespace QZCore {

/// `text` as a document whose images are written by `pictures`.
[[nodiscard]] Data rtfDocument(const RichText& text, RtfPictures& pictures);

}  // namespace QZCore
