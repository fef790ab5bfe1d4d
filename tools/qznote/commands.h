// The commands, from their arguments to their exit codes.
#pragma once

#include <span>

namespace qznote {

/// Carries out the command line behind the name of the program and returns the
/// exit code: 0, 1 when a file or the output fails, 2 when the command line is
/// wrong. What fails is told in one line on the standard error output.
[[nodiscard]] int run(std::span<const char* const> arguments);

}  // namespace qznote
