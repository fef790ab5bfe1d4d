// Sizes of files as "12 KB".
#pragma once

#include "QZCore/dates/formatter.h"
#include "QZCore/export.h"

namespace QZCore {

/// Writes sizes of files in decimal units: "999 bytes", "12 KB", "1.3 MB",
/// "2.0 GB".
class QZ_EXPORT QZFileSizeFormatter : public Formatter {
public:
    /// The text for a number of bytes, read as an unsigned 64-bit one: -1 is the
    /// largest. Kilobytes are whole; megabytes and gigabytes have one decimal,
    /// always with a dot. Halves are rounded up, and the unit is that of the size
    /// before rounding: 999,500 is "1000 KB". A string is returned as it is;
    /// anything else gives an empty text.
    [[nodiscard]] String stringForObjectValue(const Value& object) const override;

    /// Fails with "Unable to set the file size.".
    bool getObjectValue(Value& object, StringView forString,
                        String* errorDescription = nullptr) const override;
};

}  // namespace QZCore
