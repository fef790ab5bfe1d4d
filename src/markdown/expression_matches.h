// The renderer's way to the matches of an expression.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "QZCore/markdown/syntax.h"
#include "markdown/scanner.h"

namespace QZCore {

/// Appends the matches of `expression` in `text`, `limit` of them at most, to
/// `matches`. A link pattern of the user may have more groups, which are left
/// out, or fewer, which took no part.
void findMatches(const MarkdownExpression& expression, StringView text,
                 std::vector<SpanMatch>& matches, std::size_t limit = SIZE_MAX);

}  // namespace QZCore
