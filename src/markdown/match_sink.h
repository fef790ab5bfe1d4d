// Where the scanners of the Markdown dialect put their matches.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "markdown/scanner.h"

namespace QZCore {

/// The span from `start` to `end`, which must fit it.
[[nodiscard]] inline SpanMatch::Span spanOf(std::size_t start, std::size_t end) {
    return {static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end)};
}

/// Collects the matches of one search up to a limit.
class MatchSink {
public:
    /// `limit` must be above 0.
    MatchSink(std::vector<SpanMatch>& matches, std::size_t limit)
        : matches_(matches), room_(limit) {}

    /// Adds a match and returns whether the search goes on.
    [[nodiscard]] bool add(const SpanMatch& match) {
        matches_.push_back(match);
        return --room_ > 0;
    }

private:
    std::vector<SpanMatch>& matches_;
    std::size_t room_;
};

}  // namespace QZCore
