// Typed reads and writes of the values in a dictionary.
//
// A read converts the stored value by its own accessor of that type (`Value`):
// "12abc" reads as 12, "yes" as true, a number that is out of range as the
// nearest that is not. The default stands in for an absent key only, never for
// a value of another kind, which reads as nothing, false or 0. Keys are
// strings. Colours and sizes are read and written by
// `QZCore/color/stored_colors.h` and `QZCore/geometry/stored_sizes.h`.
#pragma once

#include <cstdint>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

// ---- Reading ----------------------------------------------------------------

/// The value under `key`, or the default when the key is absent.
[[nodiscard]] QZ_EXPORT Value objectForKey(const Dictionary& dictionary, StringView key,
                                           const Value& withDefault);

/// The text under `key`: a string as it is, a number in its shortest decimal
/// form, a URL as its text. A value of another kind gives nothing.
[[nodiscard]] QZ_EXPORT std::optional<String> stringForKey(
    const Dictionary& dictionary, StringView key, std::optional<StringView> withDefault = {});

/// The boolean under `key`: whether a number is not 0, or a text reads as true
/// (`boolValue`).
[[nodiscard]] QZ_EXPORT bool boolForKey(const Dictionary& dictionary, StringView key,
                                        bool withDefault = false);

/// The 32-bit integer under `key`.
[[nodiscard]] QZ_EXPORT std::int32_t intForKey(const Dictionary& dictionary, StringView key,
                                               std::int32_t withDefault = 0);

/// The unsigned 32-bit integer under `key`.
[[nodiscard]] QZ_EXPORT std::uint32_t unsignedIntForKey(const Dictionary& dictionary,
                                                        StringView key,
                                                        std::uint32_t withDefault = 0);

/// The 64-bit integer under `key`.
[[nodiscard]] QZ_EXPORT std::int64_t integerForKey(const Dictionary& dictionary, StringView key,
                                                   std::int64_t withDefault = 0);

/// The unsigned 64-bit integer under `key`.
[[nodiscard]] QZ_EXPORT std::uint64_t unsignedIntegerForKey(const Dictionary& dictionary,
                                                            StringView key,
                                                            std::uint64_t withDefault = 0);

/// The number under `key` in single precision.
[[nodiscard]] QZ_EXPORT float floatForKey(const Dictionary& dictionary, StringView key,
                                          float withDefault = 0);

/// The number under `key` in double precision.
[[nodiscard]] QZ_EXPORT double doubleForKey(const Dictionary& dictionary, StringView key,
                                            double withDefault = 0);

// ---- Writing ----------------------------------------------------------------

/// Stores a boolean.
QZ_EXPORT void setBoolean(Dictionary& dictionary, bool boolean, StringView forKey);

/// Stores a 32-bit integer.
QZ_EXPORT void setInt(Dictionary& dictionary, std::int32_t number, StringView forKey);

/// Stores an unsigned 32-bit integer.
QZ_EXPORT void setUnsignedInt(Dictionary& dictionary, std::uint32_t number, StringView forKey);

/// Stores a 64-bit integer.
QZ_EXPORT void setInteger(Dictionary& dictionary, std::int64_t number, StringView forKey);

/// Stores an unsigned 64-bit integer.
QZ_EXPORT void setUnsignedInteger(Dictionary& dictionary, std::uint64_t number, StringView forKey);

/// Stores a number in single precision, widened to double.
QZ_EXPORT void setFloat(Dictionary& dictionary, float number, StringView forKey);

/// Stores a number in double precision.
QZ_EXPORT void setDouble(Dictionary& dictionary, double number, StringView forKey);

}  // namespace QZCore
