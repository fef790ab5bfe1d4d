// Texts of ours and of ICU.
#pragma once

#include <unicode/unistr.h>

#include <cstdint>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// A view of `text`, which must outlive it and have fewer than 2^31 units.
[[nodiscard]] inline icu::UnicodeString viewOf(StringView text) {
    return {/*isTerminated=*/0, icu::ConstChar16Ptr(text.data()),
            static_cast<std::int32_t>(text.size())};
}

[[nodiscard]] inline String stringOf(const icu::UnicodeString& text) {
    return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

}  // namespace QZCore
