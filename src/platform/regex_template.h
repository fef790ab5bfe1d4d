// The replacement text of a regular expression, with its group references.
#pragma once

#include <cstddef>
#include <vector>

#include "QZCore/foundation/text.h"
#include "QZCore/platform/regex.h"

namespace QZCore {

/// A replacement template, read once and written for every match. It keeps a
/// view of the template's text.
class ReplacementTemplate {
public:
    /// Reads `text` for an expression with `numberOfGroups` capture groups.
    ReplacementTemplate(StringView text, std::size_t numberOfGroups);

    /// Appends the replacement of `match`, which was found in `text`.
    void appendTo(String& result, StringView text, const RegexMatch& match) const;

private:
    // A group's text, or the literal where the group is `kNotFound`.
    struct Piece {
        StringView literal;
        std::size_t group = kNotFound;
    };

    std::vector<Piece> pieces_;
};

}  // namespace QZCore
