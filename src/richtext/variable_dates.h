// Dates as the values of variables.
#pragma once

#include <optional>

#include "QZCore/dates/date_formatter.h"
#include "QZCore/foundation/data.h"
#include "richtext/variable_tail.h"

namespace QZCore {

/// Writes the dates of one replacement with one formatter.
class VariableDates {
public:
    /// The text of a date for the variable `name`; nothing where there is none.
    [[nodiscard]] std::optional<String> written(Date date, StringView name,
                                                const VariableTail& tail);

private:
    [[nodiscard]] DateFormatter& formatter();

    std::optional<DateFormatter> formatter_;  // made for the first date
};

}  // namespace QZCore
