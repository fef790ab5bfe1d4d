// What operations log when they are called in vain.
#pragma once

#include <doctest/doctest.h>

#include "support/log_capture.h"

namespace QZCore::testing {

/// The calls that were logged as attempts. Checks that each line says so and is
/// followed by one with the functions that led to the call.
inline std::vector<String> attempts(const LogCapture& log) {
    constexpr StringView kAttempt = u"Attempting to call ";
    const std::vector<String> lines = log.lines();
    REQUIRE(lines.size() % 2 == 0);
    std::vector<String> calls;
    for (std::size_t i = 0; i < lines.size(); i += 2) {
        CHECK(lines[i].starts_with(kAttempt));
        CHECK(lines[i + 1].starts_with(u"Stack trace: "));
        CHECK(lines[i + 1].find(u"_test") != String::npos);
        calls.push_back(lines[i].substr(kAttempt.size()));
    }
    return calls;
}

}  // namespace QZCore::testing
