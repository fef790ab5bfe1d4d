// Markdown expressions searched by the regular-expression engine.
#pragma once

#include <cstdlib>
#include <vector>

#include "QZCore/markdown/syntax.h"

namespace QZCore::testing {

/// What the engine finds with the pattern of `row`; nothing for no row.
[[nodiscard]] inline std::vector<RegexMatch> engineMatches(const MarkdownExpression* row,
                                                           StringView text) {
    if (row == nullptr) return {};
    return RegularExpression::compile(row->pattern(), row->options())->matchesInString(text);
}

/// On how many texts to compare: QZCORE_EQUALITY_TEXTS asks for more than a
/// quick run has time for.
[[nodiscard]] inline int equalityTexts(int usual) {
    const char* asked = std::getenv("QZCORE_EQUALITY_TEXTS");
    return asked == nullptr ? usual : std::atoi(asked);
}

}  // namespace QZCore::testing
