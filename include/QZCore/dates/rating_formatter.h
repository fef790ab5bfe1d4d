// Ratings as stars.
#pragma once

#include "QZCore/dates/formatter.h"
#include "QZCore/export.h"

namespace QZCore {

/// Writes a rating as filled stars, U+2605.
class QZ_EXPORT QZRatingFormatter : public Formatter {
public:
    /// As many stars as the whole part of a number says, none for 0 and below;
    /// empty for anything that is no number. There is no highest rating, but a
    /// number that would fill more than 2^24 units of text is written as that
    /// many, so that a damaged document cannot exhaust the memory.
    [[nodiscard]] String stringForObjectValue(const Value& object) const override;

    /// Fails with "Unable to set the rating.".
    bool getObjectValue(Value& object, StringView forString,
                        String* errorDescription = nullptr) const override;
};

}  // namespace QZCore
