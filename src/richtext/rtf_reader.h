// The reader of RTF documents.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "QZCore/foundation/data.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

/// The files of a bundle by their names.
using RtfFiles = std::map<std::string, DataView>;

/// Where the pictures of a document lie.
struct RtfSurroundings {
    const RtfFiles* files = nullptr;
    /// What stands before the names that the document uses.
    std::string_view folder{};
};

/// The text of `document`; nothing when it is none.
[[nodiscard]] std::optional<RichText> readRtf(std::string_view document,
                                              const RtfSurroundings& surroundings);

}  // namespace QZCore
