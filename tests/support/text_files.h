// Files of text.
#pragma once

#include <string>

#include "QZCore/foundation/files.h"

namespace QZCore::testing {

/// Makes `text` the content of the file at `path`.
inline bool writeText(const std::string& path, std::string_view text) {
    return writeFileAtomically(path, bytesOf(text));
}

/// What is in the file at `path`.
inline std::string contentOf(const std::string& path) {
    const auto bytes = readFile(path);
    return bytes ? std::string(textOf(*bytes)) : "(unreadable)";
}

}  // namespace QZCore::testing
