// Formatters: values as people read them, and back.
//
// A formatter turns a value into text, and a text that somebody typed into a
// value. Formatters are values that may be copied; different threads may use
// one formatter at once as long as none changes it. The text with attributes,
// as rich text, is made by `attributedStringForObjectValue` (richtext.h).
#pragma once

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// What all formatters have in common.
class QZ_EXPORT Formatter {
public:
    virtual ~Formatter();

    /// The text for a value; empty for a value that this formatter is not for.
    [[nodiscard]] virtual String stringForObjectValue(const Value& object) const = 0;

    /// Reads the text `forString` into `object`. Returns false where that cannot
    /// be done: then `object` is as it was, and `errorDescription`, unless null,
    /// says why.
    virtual bool getObjectValue(Value& object, StringView forString,
                                String* errorDescription = nullptr) const = 0;

protected:
    Formatter() = default;
    Formatter(const Formatter&) = default;
    Formatter(Formatter&&) = default;
    Formatter& operator=(const Formatter&) = default;
    Formatter& operator=(Formatter&&) = default;
};

}  // namespace QZCore
