// Tables of texts and of what a function gives for them.
#pragma once

#include "support/exact_copy.h"
#include "support/printing.h"

namespace QZCore::testing {

/// A text, what is expected for it, and what that shows.
template <class Result>
struct TextRow {
    const char* why;
    StringView text;
    Result expected;
};

/// Checks that `function` gives for each text what the row expects.
template <class Result, std::size_t count, class Function>
void checkRows(const TextRow<Result> (&rows)[count], Function function) {
    for (const TextRow<Result>& row : rows) {
        CAPTURE(row.why);
        CHECK(function(ExactCopy(row.text)) == row.expected);
    }
}

}  // namespace QZCore::testing
