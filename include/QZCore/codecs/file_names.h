// File names and paths, as they are shown to people and as the file system
// takes them.
//
// Paths are texts with "/" between their components. Where a function looks at
// the user's home folder, it takes the one of the user database, whatever the
// environment says, unless the caller names another.
#pragma once

#include <cstddef>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

// ---- Names ------------------------------------------------------------------

/// The last component of the path `text` without its extension, and without
/// one more when the extension was "alias": "Report.pdf.alias" gives "Report".
/// An extension is what follows the last dot, unless it is empty or the dot
/// begins the name. Slashes at the end are ignored; "/" gives "/".
[[nodiscard]] QZ_EXPORT String fileNameOnly(StringView text);

/// Compares the `fileNameOnly` forms of both without regard to case (as
/// `isCaseInsensitiveEqualToString` does) and returns -1, 0 or 1.
[[nodiscard]] QZ_EXPORT int caseInsensitiveCompareOfFileNameOnly(StringView text, StringView other);

/// `fileSafeTruncatedToMaxLength` without a limit and with an empty default.
[[nodiscard]] QZ_EXPORT String fileSafe(StringView text);

/// `text` as a name for a file: trimmed of white space at both ends, then
/// without the characters of "/\?%*:"<>" and NUL, then cut to `maxLength` units
/// unless that is 0; `withDefault` when nothing is left.
///
/// The cut may split a surrogate pair or leave a space at the end, and file
/// systems count bytes: 255 of them hold as few as 85 units.
[[nodiscard]] QZ_EXPORT String fileSafeTruncatedToMaxLength(StringView text, std::size_t maxLength,
                                                            StringView withDefault);

// ---- Paths ------------------------------------------------------------------

/// `friendlyPathWithCloudEmoji` with the emoji.
[[nodiscard]] QZ_EXPORT String friendlyPath(StringView path);

/// `path` as it is shown to people: "~" stands for the home folder, and the
/// folders that cloud services synchronise have their services' names. With
/// the emoji, a path in one of those (`isPathInCloud`) begins with a cloud and
/// a space.
///
/// A path in a synchronised folder of no known service is shown as the nearest
/// folder named "Documents" at or above it, when that folder exists on this
/// machine; what lies below it is then left out.
[[nodiscard]] QZ_EXPORT String friendlyPathWithCloudEmoji(StringView path, bool withEmoji);

/// The same with another home folder.
[[nodiscard]] QZ_EXPORT String friendlyPathWithCloudEmoji(StringView path, bool withEmoji,
                                                          StringView homeFolder);

/// Whether `path` begins with a folder that a cloud service synchronises. The
/// test is one of text: "~/Boxes" begins with "~/Box".
[[nodiscard]] QZ_EXPORT bool isPathInCloud(StringView path);

/// The same with another home folder.
[[nodiscard]] QZ_EXPORT bool isPathInCloud(StringView path, StringView homeFolder);

}  // namespace QZCore
