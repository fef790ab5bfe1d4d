#include "QZCore/codecs/uuid.h"

#include <algorithm>

#include "foundation/base64.h"
#include "foundation/hexadecimal.h"

namespace QZCore {
namespace {

constexpr std::size_t kByteCount = 16;
constexpr StringView kDashedForm = u"xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

bool isHexDigit(char16_t unit) { return hexDigitValue(unit).has_value(); }

bool fitsInForm(char16_t unit, char16_t form) {
    return form == u'-' ? unit == u'-' : isHexDigit(unit);
}

/// The bytes of a dashed UUID.
Data bytesOfUUID(StringView uuid) {
    Data bytes;
    for (std::size_t at = 0; at < uuid.size();) {
        const auto byte = hexByte(uuid.substr(at));
        if (byte) bytes.push_back(*byte);
        at += byte ? 2 : 1;
    }
    return bytes;
}

String dashedUUID(DataView bytes) {
    String uuid;
    for (const std::uint8_t byte : bytes) {
        if (kDashedForm[uuid.size()] == u'-') uuid.push_back(u'-');
        appendHexByte(uuid, byte);
    }
    return uuid;
}

}  // namespace

bool isUUID(StringView text) { return std::ranges::equal(text, kDashedForm, fitsInForm); }

bool isUndashedUUID(StringView text) {
    return text.size() == 2 * kByteCount && std::ranges::all_of(text, isHexDigit);
}

std::optional<String> encodeUUIDAsURLSafeBase64(StringView text) {
    if (!isUUID(text)) return std::nullopt;
    return urlSafeBase64Of(bytesOfUUID(text));
}

std::optional<String> decodeURLSafeBase64UUID(StringView text) {
    constexpr std::size_t kShortFormLength = 22;
    if (text.size() != kShortFormLength) return std::nullopt;
    std::string base64 = toUTF8(text) + "==";
    std::ranges::replace(base64, '_', '/');
    std::ranges::replace(base64, '-', '+');
    const auto bytes = base64Decoded(base64);
    if (!bytes || bytes->size() != kByteCount) return std::nullopt;
    return dashedUUID(*bytes);
}

}  // namespace QZCore
