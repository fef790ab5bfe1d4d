// The words of SVG path data.
#pragma once

#include <optional>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// Reads the words from left to right. What is not there is not skipped.
class SvgScanner {
public:
    explicit SvgScanner(StringView text) : text_(text) {}

    [[nodiscard]] std::size_t position() const { return at_; }
    [[nodiscard]] bool isAtEnd() const { return at_ == text_.size(); }
    /// The unit that comes next; 0 at the end.
    [[nodiscard]] char16_t next() const { return isAtEnd() ? u'\0' : text_[at_]; }

    void skip() { ++at_; }
    void skipSpace();
    /// Skips space with at most one comma in it, and returns whether there was one.
    bool skipComma();

    /// A decimal number within the range of the doubles.
    [[nodiscard]] std::optional<double> takeNumber();
    /// A "0" or "1", which needs no space behind it.
    [[nodiscard]] std::optional<double> takeFlag();

private:
    StringView text_;
    std::size_t at_ = 0;
};

}  // namespace QZCore
