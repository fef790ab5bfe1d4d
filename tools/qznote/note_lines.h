// Notes read line by line, as people write them elsewhere.
#pragma once

#include <cstddef>

#include "QZCore/foundation/text.h"

namespace qznote {

/// Takes the first line, with its line feed, off `rest`.
[[nodiscard]] QZCore::StringView takeLine(QZCore::StringView& rest);

/// The blanks and tabs that `line` starts with.
[[nodiscard]] std::size_t indentationOf(QZCore::StringView line);

/// Whether `line` has nothing but white space.
[[nodiscard]] bool isEmptyLine(QZCore::StringView line);

/// Whether `line` is a fence behind which code may start.
[[nodiscard]] bool opensCode(QZCore::StringView line);

/// Whether `line` is a fence that ends code.
[[nodiscard]] bool closesCode(QZCore::StringView line);

/// Tells code from the rest of a note, line by line.
class CodeLines {
public:
    /// Whether `line`, the one below that asked about before, stands below a
    /// fence that opens code: it is code or the fence that closes it.
    [[nodiscard]] bool isCode(QZCore::StringView line);

private:
    bool isOpen_ = false;
};

}  // namespace qznote
