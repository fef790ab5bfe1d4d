#include "color/lower_case.h"

#include <unicode/ustring.h>

#include <algorithm>
#include <cstdint>

namespace QZCore {
namespace {

bool isUpperAscii(char16_t unit) { return unit >= u'A' && unit <= u'Z'; }
bool isBeyondAscii(char16_t unit) { return unit >= 0x80; }
bool mayChange(char16_t unit) { return isUpperAscii(unit) || isBeyondAscii(unit); }

char16_t lowerAscii(char16_t unit) {
    return isUpperAscii(unit) ? static_cast<char16_t>(unit + 32) : unit;
}

/// The general case. Lower case has at most three units for one.
String lowerCasedByUnicode(StringView text) {
    constexpr std::size_t kLongest = INT32_MAX / 3;
    const StringView head = text.substr(0, kLongest);
    String lowered(head.size() * 3, u'\0');
    UErrorCode error = U_ZERO_ERROR;
    const std::int32_t length =
        u_strToLower(lowered.data(), static_cast<std::int32_t>(lowered.size()), head.data(),
                     static_cast<std::int32_t>(head.size()), "", &error);
    if (U_FAILURE(error)) return String(text);
    lowered.resize(static_cast<std::size_t>(length));
    return lowered.append(text.substr(head.size()));
}

}  // namespace

StringView lowerCased(StringView text, String& storage) {
    const auto first = std::ranges::find_if(text, mayChange);
    if (first == text.end()) return text;
    if (std::any_of(first, text.end(), isBeyondAscii)) {
        storage = lowerCasedByUnicode(text);
    } else {
        storage.assign(text);
        std::ranges::transform(storage, storage.begin(), lowerAscii);
    }
    return storage;
}

}  // namespace QZCore
