// Data encrypted with a password.
//
// The envelopes are stored in documents. Their keys come from 10,000 iterations
// of PBKDF2 with HMAC-SHA-1, or from a bare SHA-1, which is little by today's
// measure and fixed by what is stored: choose long passwords. Passwords are taken
// as UTF-8; the empty one is a password like any other. No password gives no
// data, and so does a failure of the machine's cryptography. Every function may
// be called from any thread. Sealing or opening an AES-256 envelope takes some
// ten milliseconds besides the time for the data.
#pragma once

#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

// ---- AES-256, authenticated -------------------------------------------------
//
//   at      bytes  is
//   0       1      the format, 1
//   1       1      options, 0
//   2       8      the salt of the encryption key
//   10      8      the salt of the authentication key
//   18      16     the initialisation vector
//   34      n      the data: AES-256 in CBC mode with PKCS#7 padding
//   34 + n  32     HMAC-SHA-256 of all that stands before

/// An envelope with `data`, which `dataDecryptedAES256WithPassword` opens.
[[nodiscard]] QZ_EXPORT std::optional<Data> dataSealedAES256WithPassword(
    DataView data, std::optional<StringView> password);

/// The data of an envelope. No data when it was not sealed with this password,
/// or when any of its bits has changed. The options are not looked at, but
/// authenticated.
[[nodiscard]] QZ_EXPORT std::optional<Data> dataDecryptedAES256WithPassword(
    DataView envelope, std::optional<StringView> password);

/// An envelope with 34 zeros in place of its first 34 bytes; the authentication
/// code covers those bytes, then the zeros and the rest. Nothing can open it, as
/// the salts and the vector are lost. Kept as it is for its callers; to read
/// the data again, use `dataSealedAES256WithPassword`.
[[nodiscard]] QZ_EXPORT std::optional<Data> dataEncryptedAES256WithPassword(
    DataView data, std::optional<StringView> password);

// ---- AES-128, not authenticated ---------------------------------------------
//
// For data that exist: an initialisation vector of 16 bytes, then AES-128 in CBC
// mode of the data, zeros, and the data's length in the last four bytes, highest
// first. Whoever can write to such an envelope can change what is in it.

/// An envelope with `data`: 48 bytes, and 16 for every whole 16 of the data. No
/// data for 4 GiB or more.
[[nodiscard]] QZ_EXPORT std::optional<Data> dataEncryptedAES128WithPassword(
    DataView data, std::optional<StringView> password);

/// The data of an envelope. No data when the zeros before the length are not
/// there, as with a wrong password, or the length is more than fits.
[[nodiscard]] QZ_EXPORT std::optional<Data> dataDecryptedAES128WithPassword(
    DataView envelope, std::optional<StringView> password);

}  // namespace QZCore
