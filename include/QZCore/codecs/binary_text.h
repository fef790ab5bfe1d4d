// Bytes as texts: base32 with an alphabet of its own, and URL-safe base64.
//
// Both forms may be stored, and are the same for ever. Every function may be
// called from any thread.
#pragma once

#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// `data` in base32: five bits a symbol, first bit first, the last symbol
/// filled up with zeros; no padding. The symbols are the digits 2 to 9 and the
/// upper-case letters without I and O, which are easily taken for digits.
[[nodiscard]] QZ_EXPORT String base32String(DataView data);

/// The bytes that a base32 text stands for.
///
/// There are as many as the number of its ASCII characters allows, five bits
/// each, whatever the characters are; but only symbols stand for bits. All
/// others are passed over, lower-case letters among them, and the bits that
/// are missing in the end are zeros. No string gives no data.
[[nodiscard]] QZ_EXPORT std::optional<Data> dataWithBase32String(
    std::optional<StringView> base32String);

/// Makes `data` what `dataWithBase32String` gives. False for no string, which
/// leaves `data` as it is.
QZ_EXPORT bool initWithBase32String(Data& data, std::optional<StringView> base32String);

/// `data` in base64 with "-" and "_" in place of "+" and "/", without padding
/// (RFC 4648, section 5).
[[nodiscard]] QZ_EXPORT String urlSafeBase64(DataView data);

}  // namespace QZCore
