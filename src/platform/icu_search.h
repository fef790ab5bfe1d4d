// One search of a regular expression through a text.
#pragma once

#include <unicode/regex.h>
#include <unicode/utext.h>

#include <chrono>
#include <cstdint>
#include <memory>

#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"
#include "QZCore/platform/regex.h"

namespace QZCore {

/// The longest text and pattern that the engine reads.
inline constexpr std::size_t kLongestRegexText = INT32_MAX;

/// Ends searches whose work the engine does not count: it counts the places that
/// it may come back to, not the characters that an atomic loop runs over.
class RegexDeadline {
public:
    explicit RegexDeadline(std::int32_t milliseconds);

    /// Has the matcher ask for the time, now and then, while it searches.
    void watch(icu::RegexMatcher& matcher, UErrorCode& status);

private:
    using Clock = std::chrono::steady_clock;

    static UBool U_CALLCONV continueAtStart(const void* context, std::int64_t start);
    static UBool U_CALLCONV continueAtSteps(const void* context, std::int32_t steps);
    [[nodiscard]] bool isAhead() const { return Clock::now() < end_; }

    Clock::time_point end_;
    unsigned starts_ = 0;
};

/// A matcher over a part of a text, which is read where it lies.
class RegexSearch {
public:
    /// Searches the part of `text` in `range`, cut to the text.
    RegexSearch(const icu::RegexPattern& engine, std::int32_t budget, StringView text, Range range);
    ~RegexSearch();
    RegexSearch(const RegexSearch&) = delete;
    RegexSearch& operator=(const RegexSearch&) = delete;

    /// Finds the next match; false when there is none or the budget is used up.
    bool findNext();
    /// Finds the match at the start of the part.
    bool matchAtStart();
    /// The match found last, in positions of the whole text.
    [[nodiscard]] RegexMatch match();

private:
    RegexSearch(const icu::RegexPattern& engine, std::int32_t limit, StringView part,
                std::size_t offset);

    std::size_t offset_;
    RegexDeadline deadline_;
    UErrorCode status_ = U_ZERO_ERROR;
    UText text_ = UTEXT_INITIALIZER;
    std::unique_ptr<icu::RegexMatcher> matcher_;
};

}  // namespace QZCore
