// Universally unique identifiers as texts.
//
// The dashed form is "8-4-4-4-12" hexadecimal digits, the short form 22
// characters of URL-safe base64.
#pragma once

#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// Whether `text` is a dashed UUID, in upper or lower case.
[[nodiscard]] QZ_EXPORT bool isUUID(StringView text);

/// Whether `text` is 32 hexadecimal digits.
[[nodiscard]] QZ_EXPORT bool isUndashedUUID(StringView text);

/// The 16 bytes of a dashed UUID in base64 with "-" and "_" in place of "+" and
/// "/" and without padding: 22 characters. Nothing when `text` is no UUID.
[[nodiscard]] QZ_EXPORT std::optional<String> encodeUUIDAsURLSafeBase64(StringView text);

/// The dashed UUID in upper case that the 22 characters of `text` stand for.
/// "+" and "/" are read as well; the four bits that the last character has too
/// many are ignored. Nothing for any other length or character.
[[nodiscard]] QZ_EXPORT std::optional<String> decodeURLSafeBase64UUID(StringView text);

}  // namespace QZCore
