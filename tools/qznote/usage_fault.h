// A wrong command line.
#pragma once

#include <string>

namespace qznote {

/// Why a command line is none, in words for the user.
struct UsageFault {
    std::string reason;
};

}  // namespace qznote
