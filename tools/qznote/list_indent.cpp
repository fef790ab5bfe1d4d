#include "list_indent.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "QZCore/markdown/syntax.h"

namespace qznote {
namespace {

using namespace QZCore;

constexpr std::size_t kMost = 4;
constexpr std::size_t kUnknown = SIZE_MAX;  // more than any

std::vector<RegexMatch> matchesOf(StringView key, StringView note) {
    const MarkdownExpression* expression = allMarkdownRegex().expressionForKey(key);
    return expression == nullptr ? std::vector<RegexMatch>() : expression->matchesInString(note);
}

/// The items outside of code.
std::vector<RegexMatch> itemsOf(StringView note) {
    std::vector<RegexMatch> items = matchesOf(kMarkdownListLine, note);
    const std::vector<RegexMatch> code = matchesOf(kMarkdownCodeBlock, note);
    auto block = code.begin();
    std::erase_if(items, [&](const RegexMatch& item) {
        const std::size_t start = item.range().location;
        while (block != code.end() && block->range().end() <= start) ++block;
        return block != code.end() && block->range().location <= start;
    });
    return items;
}

}  // namespace

std::int64_t blanksPerLevel(StringView note) {
    std::array<std::size_t, kMost + 1> steps{};  // by their width
    std::size_t before = kUnknown;               // the blanks of the item above
    std::size_t end = 0;
    for (const RegexMatch& item : itemsOf(note)) {
        const Range range = item.range();
        const Range blanks = item.group(1);
        const bool startsList = note.substr(end, range.location - end).find(u"\n\n") != note.npos;
        const bool isTabbed = note.substr(blanks.location, blanks.length).starts_with(u'\t');
        const bool isBelow = blanks.length > before && !isTabbed && !startsList;
        if (isBelow) ++steps[std::min(blanks.length - before, kMost)];
        before = isTabbed ? kUnknown : blanks.length;
        end = range.end();
    }
    // A few narrow steps among wide ones are slips.
    if (steps[kMost] >= steps[2] + steps[3]) return kMost;
    return steps[2] > 0 ? 2 : 3;
}

}  // namespace qznote
