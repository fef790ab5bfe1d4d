// Variables in templates: names between a prefix and a suffix, which
// `RichText::replaceVariablesWithDictionary` replaces by values.
//
// A name may be followed by a format and, behind a slash, by a letter case:
// "<<Name>>", "<<Name/uppercase>>", "<<DueDateWithTimeShort>>",
// "<<DueDateFormat:d MMMM>>". Prefix and suffix are any text; what follows the
// name may have no character of the suffix.
#pragma once

#include <cstdint>

namespace QZCore {

/// What replacing variables allows and does, to be added up.
enum VariableOptions : std::uint32_t {
    kVariableNoOptions = 0,
    /// Dates may have the formats "Short", "Medium", "Long", "Full", "ISO8601"
    /// and "RFC3339"; without this only "Format:" and a pattern.
    kVariableDateStyles = 1,
    /// Every value is percent-encoded for the query of a URL.
    kVariablePercentEncoding = 2,
};

}  // namespace QZCore
