// Regular expressions in ICU syntax.
//
// A compiled expression is immutable and may be used from any thread. Matching
// ends on every input: each search has a budget of work (`kDefaultMatchBudget`
// by default) that grows with the length of its text; when it is used up, that
// match and all later ones of the same search count as not found. So do all
// matches in a text of 2^31 units or more.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// Options of an expression, to be added up.
enum RegexOptions : std::uint32_t {
    kRegexNoOptions = 0,
    kRegexCaseInsensitive = 1,           // letters match in upper and lower case
    kRegexDotMatchesLineSeparators = 8,  // "." also matches line ends
    kRegexAnchorsMatchLines = 16,        // "^" and "$" match at line ends too
};

/// One match: the range of the whole and of each capture group. A group that
/// took no part has `kNotFoundRange`.
struct RegexMatch {
    /// The whole match at 0, then the groups from 1 on; never empty.
    std::vector<Range> groups;

    /// The whole match.
    [[nodiscard]] Range range() const { return groups.front(); }
    /// Group `index`; `kNotFoundRange` when the expression has no such group.
    [[nodiscard]] Range group(std::size_t index) const {
        return index < groups.size() ? groups[index] : kNotFoundRange;
    }
    /// Exact comparison of all ranges.
    friend bool operator==(const RegexMatch&, const RegexMatch&) = default;
};

/// The work that one search may cost, in units of ten thousand steps of the
/// engine: about a second. Every thousand units of the text add one unit of
/// work, so that long texts and patterns that take a few steps for each
/// character get along. The same number of milliseconds bounds the time.
inline constexpr std::int32_t kDefaultMatchBudget = 5000;

/// A compiled regular expression.
class QZ_EXPORT RegularExpression {
public:
    /// Compiles `pattern` with the sum of `RegexOptions`; nothing when the
    /// pattern is empty, not well-formed or has the first half of a surrogate
    /// pair alone, or an option bit is unknown. A budget below 1 counts as 1.
    [[nodiscard]] static std::optional<RegularExpression> compile(
        StringView pattern, std::uint32_t options = kRegexNoOptions,
        std::int32_t budget = kDefaultMatchBudget);

    /// The pattern text as it was given.
    [[nodiscard]] const String& pattern() const;
    /// The options as they were given.
    [[nodiscard]] std::uint32_t options() const;
    /// The number of capture groups.
    [[nodiscard]] std::size_t numberOfCaptureGroups() const;

    // The searches look at the part of `text` in `range` (cut to the text), as
    // if it were all there is: "^" and "$" match at its ends, and look-behind
    // does not see beyond it. All ranges returned are positions in `text`.

    /// All matches that do not overlap, from the start on.
    [[nodiscard]] std::vector<RegexMatch> matchesInString(StringView text, Range range) const;
    /// All matches in the whole text.
    [[nodiscard]] std::vector<RegexMatch> matchesInString(StringView text) const;
    /// The first match.
    [[nodiscard]] std::optional<RegexMatch> firstMatchInString(StringView text, Range range) const;
    /// The first match in the whole text.
    [[nodiscard]] std::optional<RegexMatch> firstMatchInString(StringView text) const;
    /// The match that starts exactly at the start of `range`.
    [[nodiscard]] std::optional<RegexMatch> anchoredMatchInString(StringView text,
                                                                  Range range) const;
    /// The match that starts exactly at the start of the text.
    [[nodiscard]] std::optional<RegexMatch> anchoredMatchInString(StringView text) const;
    /// The number of matches.
    [[nodiscard]] std::size_t numberOfMatchesInString(StringView text, Range range) const;
    /// The number of matches in the whole text.
    [[nodiscard]] std::size_t numberOfMatchesInString(StringView text) const;
    /// The whole text with every match in `range` replaced by `withTemplate`,
    /// in which "$0" to "$9" and longer group numbers stand for the groups and
    /// a backslash takes the next unit as it is. A group number goes on as long
    /// as the expression has such a group, so "$12" is group 1 and a "2" where
    /// there are fewer than twelve. A reference to a group that the expression
    /// does not have, or that took no part, stands for nothing; a "$" before
    /// anything but a digit stands for itself.
    [[nodiscard]] String stringByReplacingMatchesInString(StringView text, Range range,
                                                          StringView withTemplate) const;
    /// The same over the whole text.
    [[nodiscard]] String stringByReplacingMatchesInString(StringView text,
                                                          StringView withTemplate) const;

private:
    struct Compiled;
    explicit RegularExpression(std::shared_ptr<const Compiled> compiled);

    std::shared_ptr<const Compiled> compiled_;
};

}  // namespace QZCore
