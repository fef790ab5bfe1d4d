#include <unicode/casemap.h>
#include <unicode/edits.h>

#include "platform/letter_case.h"

namespace QZCore {
namespace {

/// Writes `text` into `result`, as far as there is room, and returns the length
/// of the whole.
std::int32_t mapCase(StringView text, LetterCase letterCase, String& result, icu::Edits& edits,
                     UErrorCode& status) {
    const auto length = static_cast<std::int32_t>(text.size());
    const auto room = static_cast<std::int32_t>(result.size());
    constexpr const char* kNoLocale = "";
    switch (letterCase) {
        case LetterCase::Upper:
            return icu::CaseMap::toUpper(kNoLocale, 0, text.data(), length, result.data(), room,
                                         &edits, status);
        case LetterCase::Lower:
            return icu::CaseMap::toLower(kNoLocale, 0, text.data(), length, result.data(), room,
                                         &edits, status);
        case LetterCase::Capitalized:
            return icu::CaseMap::toTitle(kNoLocale, 0, nullptr, text.data(), length, result.data(),
                                         room, &edits, status);
    }
    return 0;
}

void movePositions(const icu::Edits& edits, std::vector<std::size_t>& positions) {
    UErrorCode status = U_ZERO_ERROR;
    auto changes = edits.getFineIterator();
    for (std::size_t& position : positions) {
        const auto before = static_cast<std::int32_t>(position);
        position =
            static_cast<std::size_t>(changes.destinationIndexFromSourceIndex(before, status));
    }
}

}  // namespace

String textInCase(StringView text, LetterCase letterCase, std::vector<std::size_t>& positions) {
    String result(text);
    if (text.empty() || text.size() > INT32_MAX) return result;
    icu::Edits edits;
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t length = mapCase(text, letterCase, result, edits, status);
    if (status == U_BUFFER_OVERFLOW_ERROR) {
        result.resize(static_cast<std::size_t>(length));
        status = U_ZERO_ERROR;
        edits.reset();
        length = mapCase(text, letterCase, result, edits, status);
    }
    if (U_FAILURE(status) != 0) return String(text);
    result.resize(static_cast<std::size_t>(length));
    movePositions(edits, positions);
    return result;
}

String textInCase(StringView text, LetterCase letterCase) {
    std::vector<std::size_t> none;
    return textInCase(text, letterCase, none);
}

}  // namespace QZCore
