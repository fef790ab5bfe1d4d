// Variables in a text: a name between prefix and suffix.
#pragma once

#include <vector>

#include "QZCore/codecs/character_set.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A variable, and what stands between its name and the suffix.
struct VariableMatch {
    Range whole;
    Range tail;
};

/// Finds the variables of a text that begin with `prefix` and end with `suffix`.
class VariableSearch {
public:
    /// The text and the two must outlive the search.
    VariableSearch(StringView text, StringView prefix, StringView suffix);

    /// Whether the prefix occurs at all.
    [[nodiscard]] bool hasPrefix() const { return !prefixes_.empty(); }

    /// The variables with the given name, from the start on and without
    /// overlaps. Nothing when the name does not follow the prefix anywhere as it
    /// is written; then a name with pattern characters is a regular expression.
    [[nodiscard]] std::vector<VariableMatch> matches(StringView name) const;

private:
    [[nodiscard]] std::vector<VariableMatch> patternMatches(StringView name) const;
    [[nodiscard]] std::vector<VariableMatch> literalMatches(const std::vector<std::size_t>& tails,
                                                            std::size_t openingLength) const;

    StringView text_;
    StringView prefix_;
    StringView suffix_;
    CharacterSet endings_;               // the characters of the suffix
    std::vector<std::size_t> prefixes_;  // where it occurs
};

}  // namespace QZCore
