// Finding the end of image files, to tell whole ones from those cut off.
#pragma once

#include "QZCore/foundation/data.h"

namespace QZCore {

/// Whether the chunks of a PNG file reach the end chunk.
[[nodiscard]] bool pngHasEnd(DataView file);

/// Whether the segments of a JPEG file reach the end marker, after 24 scans at
/// most: each scan costs a pass over all pixels, and a few bytes make one.
[[nodiscard]] bool jpegHasEnd(DataView file);

/// Whether a BMP file reaches the start of its pixels, as its header tells it.
/// Its reader would take as much memory as that start, up to four gigabytes.
[[nodiscard]] bool bmpReachesPixels(DataView file);

}  // namespace QZCore
