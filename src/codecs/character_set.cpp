#include "QZCore/codecs/character_set.h"

#include <algorithm>

#include "platform/letters.h"

namespace QZCore {
namespace {

constexpr char32_t kLastUnit = 0xFFFF;

CharacterSet unitsForWhich(bool (*isMember)(char16_t)) {
    std::vector<CharacterRange> ranges;
    for (char32_t unit = 0; unit <= kLastUnit; ++unit) {
        if (isMember(static_cast<char16_t>(unit))) ranges.push_back({unit, unit});
    }
    return CharacterSet::charactersInRanges(std::move(ranges));
}

CharacterSet lettersOfUpperCase() {
    std::vector<CharacterRange> ranges;
    for (const auto& [first, last] : rangesOfUppercaseLetters()) ranges.push_back({first, last});
    return CharacterSet::charactersInRanges(std::move(ranges));
}

/// Sorts the ranges and joins those that overlap or touch.
void normalize(std::vector<CharacterRange>& ranges) {
    std::erase_if(ranges, [](CharacterRange range) { return range.first > range.last; });
    std::ranges::sort(ranges, {}, &CharacterRange::first);
    std::vector<CharacterRange> joined;
    for (const CharacterRange range : ranges) {
        if (!joined.empty() && range.first <= joined.back().last + 1ULL) {
            joined.back().last = std::max(joined.back().last, range.last);
        } else {
            joined.push_back(range);
        }
    }
    ranges = std::move(joined);
}

}  // namespace

CharacterSet CharacterSet::charactersInString(StringView string) {
    std::vector<CharacterRange> ranges;
    for (std::size_t at = 0; at < string.size();) {
        const CodePoint point = codePointAt(string, at);
        ranges.push_back({point.value, point.value});
        at += point.length;
    }
    return charactersInRanges(std::move(ranges));
}

CharacterSet CharacterSet::charactersInRanges(std::vector<CharacterRange> ranges) {
    CharacterSet set;
    set.ranges_ = std::move(ranges);
    normalize(set.ranges_);
    for (const CharacterRange range : set.ranges_) {
        for (char32_t c = range.first; c <= range.last && c < kIndexed; ++c) {
            set.index_[c / 64] |= std::uint64_t{1} << (c % 64);
        }
    }
    return set;
}

bool CharacterSet::containsBeyondIndex(char32_t character) const {
    const auto after = std::ranges::upper_bound(ranges_, character, {}, &CharacterRange::first);
    return after != ranges_.begin() && character <= std::prev(after)->last;
}

const CharacterSet& CharacterSet::whitespace() {
    static const auto& set = *new CharacterSet(unitsForWhich(isWhitespace));
    return set;
}

const CharacterSet& CharacterSet::newlines() {
    static const auto& set = *new CharacterSet(unitsForWhich(isNewline));
    return set;
}

const CharacterSet& CharacterSet::whitespaceAndNewlines() {
    static const auto& set = *new CharacterSet(unitsForWhich(isWhitespaceOrNewline));
    return set;
}

const CharacterSet& CharacterSet::uppercaseLetters() {
    static const auto& set = *new CharacterSet(lettersOfUpperCase());
    return set;
}

const CharacterSet& hexCharacterSet() {
    static const auto& set =
        *new CharacterSet(CharacterSet::charactersInString(u"1234567890abcdefABCDEF"));
    return set;
}

}  // namespace QZCore
