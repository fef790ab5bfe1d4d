#include <unicode/casemap.h>
#include <unicode/uchar.h>

#include <array>

#include "platform/letters.h"

namespace QZCore {

bool isLetter(char32_t character) { return u_isalpha(static_cast<UChar32>(character)) != 0; }

std::vector<std::pair<char32_t, char32_t>> rangesOfUppercaseLetters() {
    std::vector<std::pair<char32_t, char32_t>> ranges;
    // The engine takes the context as constant, but hands it through.
    u_enumCharTypes(
        [](const void* context, UChar32 start, UChar32 limit, UCharCategory category) -> UBool {
            if (category != U_UPPERCASE_LETTER && category != U_TITLECASE_LETTER) return true;
            auto* found = static_cast<decltype(ranges)*>(const_cast<void*>(context));
            found->emplace_back(start, limit - 1);
            return true;
        },
        &ranges);
    return ranges;
}

char32_t lowercased(char32_t character) {
    return static_cast<char32_t>(u_tolower(static_cast<UChar32>(character)));
}

String capitalized(char32_t letter) {
    String text;
    appendCodePoint(text, letter);
    std::array<char16_t, 16> capital;
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t length = icu::CaseMap::toTitle(
        "", U_TITLECASE_WHOLE_STRING, nullptr, text.data(), static_cast<std::int32_t>(text.size()),
        capital.data(), capital.size(), nullptr, status);
    return U_SUCCESS(status) ? String(capital.data(), static_cast<std::size_t>(length)) : text;
}

}  // namespace QZCore
