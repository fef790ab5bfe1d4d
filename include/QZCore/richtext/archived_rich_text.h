// Rich text in archives: as the class "RichText" of texts in boxes
// (`Value::boxed`), with all attributes.
//
// The class is known by its name in every program that uses rich texts, so that
// attributed objects can hold them. It brings the classes of what attributes
// are along: fonts, colours, paragraph styles and attachments with their
// images. Attributes with other values need these to be allowed.
#pragma once

#include "QZCore/export.h"
#include "QZCore/model/archived_class.h"

namespace QZCore {

/// The class of rich texts in boxes. Its contents, and those of its parts, are
/// stored in documents.
[[nodiscard]] QZ_EXPORT ArchivedClass archivedRichText();

}  // namespace QZCore
