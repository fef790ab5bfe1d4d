// Finds reads past the end of a text.
#pragma once

#include <memory>

#include "QZCore/foundation/text.h"

namespace QZCore::testing {

/// A text in a block of exactly its size, so that a read past the text is a
/// read past the block, which the address sanitizer reports.
class ExactCopy {
public:
    explicit ExactCopy(StringView text)
        : units_(std::make_unique<char16_t[]>(text.size())), size_(text.size()) {
        text.copy(units_.get(), size_);
    }
    operator StringView() const { return {units_.get(), size_}; }

private:
    std::unique_ptr<char16_t[]> units_;
    std::size_t size_;
};

}  // namespace QZCore::testing
