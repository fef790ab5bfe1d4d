// The formats of pixel images that are read.
//
// Only formats stand here whose reader asks for the size before it takes
// memory, which was tried for each: some readers of gdk-pixbuf (ICNS, QTIF,
// WebP) do not, and a kilobyte makes them take gigabytes.
#pragma once

#include "QZCore/foundation/data.h"

namespace QZCore {

/// A format: how its files begin, and how one that is cut off is noticed.
struct ImageFormat {
    std::string_view signature;
    /// The name of its reader.
    const char* reader;
    StringView mediaType;
    /// Whether a file has its end; its reader would not notice.
    bool (*hasEnd)(DataView file);
    /// Whether its reader must have reported every row. A GIF's first picture
    /// may cover only a part of it.
    bool reportsEveryRow;
};

/// The format of `file`, judged by how it begins; null when it is none that
/// is read.
[[nodiscard]] const ImageFormat* imageFormatOf(DataView file);

}  // namespace QZCore
