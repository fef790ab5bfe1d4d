// The text of a template: where its variables are, a name between prefix and
// suffix, while they are replaced.
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

/// What comes in the place of a variable.
struct VariableEdit {
    Range range;
    String text;
};

/// A text with variables that begin with `prefix` and end with `suffix`.
class VariableText {
public:
    /// The prefix and the suffix must outlive it.
    VariableText(String text, StringView prefix, StringView suffix);

    [[nodiscard]] StringView text() const { return text_; }

    /// Whether the prefix occurs at all.
    [[nodiscard]] bool hasPrefix() const { return !prefixes_.empty(); }

    /// The variables with the given name, from the start on and without
    /// overlaps. Nothing when the name does not follow the prefix anywhere as it
    /// is written; then a name with pattern characters is a regular expression.
    [[nodiscard]] std::vector<VariableMatch> matches(StringView name) const;

    /// Carries out edits, the first in the text first. Only what is put in, and
    /// its surroundings, is searched for prefixes again.
    void apply(const std::vector<VariableEdit>& edits);

private:
    [[nodiscard]] bool needsExpression(StringView name) const;
    [[nodiscard]] std::vector<VariableMatch> expressionMatches(StringView name) const;
    [[nodiscard]] std::vector<VariableMatch> literalMatches(const std::vector<std::size_t>& tails,
                                                            std::size_t openingLength) const;
    [[nodiscard]] std::vector<Range> replace(const std::vector<VariableEdit>& edits);
    [[nodiscard]] std::vector<std::size_t> untouchedPrefixes(
        const std::vector<VariableEdit>& edits) const;
    [[nodiscard]] std::vector<std::size_t> prefixesAround(const std::vector<Range>& parts) const;

    String text_;
    StringView prefix_;
    StringView suffix_;
    CharacterSet endings_;               // the characters of the suffix
    std::vector<std::size_t> prefixes_;  // where it occurs
};

}  // namespace QZCore
