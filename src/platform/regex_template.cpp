#include "platform/regex_template.h"

namespace QZCore {

namespace {

bool isDigitAt(StringView text, std::size_t index) {
    return index < text.size() && text[index] >= u'0' && text[index] <= u'9';
}

// The group number whose digits start at `index`, which moves behind them.
std::size_t readGroup(StringView text, std::size_t& index, std::size_t numberOfGroups) {
    auto group = static_cast<std::size_t>(text[index++] - u'0');
    while (isDigitAt(text, index)) {
        const std::size_t longer = group * 10 + static_cast<std::size_t>(text[index] - u'0');
        if (longer > numberOfGroups) break;
        group = longer;
        ++index;
    }
    return group;
}

}  // namespace

ReplacementTemplate::ReplacementTemplate(StringView text, std::size_t numberOfGroups) {
    std::size_t literalStart = 0;
    const auto endLiteral = [&](std::size_t end) {
        if (end > literalStart) pieces_.push_back({text.substr(literalStart, end - literalStart)});
    };
    for (std::size_t index = 0; index < text.size();) {
        if (text[index] == u'\\') {
            endLiteral(index);
            literalStart = index + 1;
            index += 2;
        } else if (text[index] == u'$' && isDigitAt(text, index + 1)) {
            endLiteral(index);
            pieces_.push_back({.literal = {}, .group = readGroup(text, ++index, numberOfGroups)});
            literalStart = index;
        } else {
            ++index;
        }
    }
    endLiteral(text.size());
}

void ReplacementTemplate::appendTo(String& result, StringView text, const RegexMatch& match) const {
    for (const Piece& piece : pieces_) {
        const Range group = match.group(piece.group);
        if (piece.group == kNotFound) {
            result.append(piece.literal);
        } else if (group != kNotFoundRange) {
            result.append(text, group.location, group.length);
        }
    }
}

}  // namespace QZCore
