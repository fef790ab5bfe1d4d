// What a note contains, for people.
#pragma once

#include <string>

#include "QZCore/foundation/text.h"

namespace qznote {

/// One line for each construct that `note` contains, with the number of its
/// matches, then one for each question that the detection answers. Escaped
/// characters count for the escapes alone.
[[nodiscard]] std::string detectionReport(QZCore::StringView note);

}  // namespace qznote
