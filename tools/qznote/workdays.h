// Questions about work days, in the words of the command line.
#pragma once

#include <string>
#include <variant>

#include "usage_fault.h"

namespace qznote {

/// A date, and what to do with it. All are texts as they were typed.
struct WorkdaysQuestion {
    /// A date in the form of ISO 8601, or "now".
    std::string date;
    /// An amount to add, as "10d"; empty for none.
    std::string amount{};
    /// A date to measure the distance to; empty for none.
    std::string end{};
    /// The weekdays of work.
    std::string days = "mon,tue,wed,thu,fri";
    /// The hours of work, as "9:00-17:30"; empty for all.
    std::string hours{};
};

/// One line with the answer: the date that lies an amount later, the distance,
/// or whether the date is working time. Or which of the texts makes no sense.
[[nodiscard]] std::variant<std::string, UsageFault> answer(const WorkdaysQuestion& question);

}  // namespace qznote
