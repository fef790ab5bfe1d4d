// Points, sizes, rectangles and ranges in archives.
#pragma once

#include <vector>

#include "QZCore/model/archived_class.h"

namespace QZCore {

/// The classes "Point", "Size", "Rect" and "Range" of values in boxes. A
/// rectangle is the four numbers of its origin and size. Stored in documents.
[[nodiscard]] std::vector<ArchivedClass> archivedBoxes();

}  // namespace QZCore
