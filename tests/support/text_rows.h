// Tables of texts and of what a function gives for them.
#pragma once

#include <initializer_list>

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
template <class Result, class Function>
void checkRows(Function function, std::initializer_list<TextRow<Result>> rows) {
    for (const TextRow<Result>& row : rows) {
        CAPTURE(row.why);
        CHECK(function(ExactCopy(row.text)) == row.expected);
    }
}

}  // namespace QZCore::testing
