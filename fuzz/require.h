// The check of a law in a fuzz target.
#pragma once

/// Stops the process when a law does not hold, which the fuzzer reports
/// together with the input.
inline void require(bool holds) {
    if (!holds) __builtin_trap();
}
