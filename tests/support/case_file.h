// Case files: a name, settings, an input and what is expected, as text.
//
//     === the name of the case
//     {"preferences": {...}, "styles": {...}}      (optional, one line)
//     the input, up to a line of three hyphens
//     ---
//     what is expected, up to the next name
//
// The line feed before "---" is not part of the input.
#pragma once

#include <string>
#include <vector>

namespace QZCore::testing {

/// One case.
struct Case {
    std::string where;  // file and line
    std::string name;
    std::string settings;
    std::string input;
    std::string expected;
};

/// All cases of the files "*.txt" in `folder`. Fails the test when there are
/// none, or when a file cannot be read as cases.
[[nodiscard]] std::vector<Case> loadCases(const std::string& folder);

}  // namespace QZCore::testing
