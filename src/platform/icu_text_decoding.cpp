#include <unicode/ucnv.h>

#include <array>

#include "platform/text_decoding.h"

namespace QZCore {
namespace {

/// A converter that stops at the first fault; empty when there is none for the
/// character set.
icu::LocalUConverterPointer openConverter(const char* charset) {
    UErrorCode status = U_ZERO_ERROR;
    icu::LocalUConverterPointer converter(ucnv_open(charset, &status));
    if (converter.isValid()) {
        ucnv_setToUCallBack(converter.getAlias(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr,
                            nullptr, &status);
    }
    return converter;
}

}  // namespace

std::optional<String> decodedText(std::string_view bytes, const char* charset) {
    const icu::LocalUConverterPointer converter = openConverter(charset);
    if (converter.isNull()) return std::nullopt;
    if (bytes.empty()) return String();
    String text;
    std::array<char16_t, 4096> units;
    const char* next = bytes.data();
    UErrorCode status = U_BUFFER_OVERFLOW_ERROR;
    while (status == U_BUFFER_OVERFLOW_ERROR) {
        status = U_ZERO_ERROR;
        char16_t* end = units.data();
        ucnv_toUnicode(converter.getAlias(), &end, units.data() + units.size(), &next,
                       bytes.data() + bytes.size(), nullptr, true, &status);
        text.append(units.data(), end);
    }
    if (U_FAILURE(status)) return std::nullopt;
    return text;
}

}  // namespace QZCore
