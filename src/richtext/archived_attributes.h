// The values of text attributes in archives.
#pragma once

#include <vector>

#include "QZCore/model/archived_class.h"

namespace QZCore {

/// The classes "Font", "Color", "ParagraphStyle" and "TextAttachment" of values
/// in boxes, with their parts. Stored in documents.
[[nodiscard]] std::vector<ArchivedClass> archivedAttributeValues();

/// The class "Color" alone.
[[nodiscard]] ArchivedClass archivedColor();

/// The class "ParagraphStyle" alone.
[[nodiscard]] ArchivedClass archivedParagraphStyle();

}  // namespace QZCore
