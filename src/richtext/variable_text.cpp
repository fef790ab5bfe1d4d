#include "richtext/variable_text.h"

#include <algorithm>
#include <utility>

#include "QZCore/platform/regex.h"
#include "codecs/literal_search.h"

namespace QZCore {
namespace {

bool isPattern(StringView name) {
    return name.find_first_of(u"\\*?+[](){}^$|.") != StringView::npos;
}

/// `text` for an expression in which it stands for itself, in a set of
/// characters or outside.
String escapedPattern(StringView text) {
    String escaped;
    for (const char16_t unit : text) {
        const bool isWordUnit = (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') ||
                                (unit >= u'a' && unit <= u'z') || unit == u'_';
        if (unit < 0x80 && !isWordUnit) escaped += u'\\';
        escaped += unit;
    }
    return escaped;
}

bool hasHalfPairs(StringView text) {
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint next = codePointAt(text, at);
        if (next.length == 1 && (isHighSurrogate(text[at]) || isLowSurrogate(text[at]))) {
            return true;
        }
        at += next.length;
    }
    return false;
}

/// Where `part` occurs, overlaps included.
std::vector<std::size_t> occurrences(StringView text, StringView part) {
    std::vector<std::size_t> found;
    LiteralSearch search(text, part);
    for (std::size_t at = search.next(); at != kNotFound; at = search.next()) found.push_back(at);
    return found;
}

}  // namespace

VariableText::VariableText(String text, StringView prefix, StringView suffix)
    : text_(std::move(text)),
      prefix_(prefix),
      suffix_(suffix),
      endings_(CharacterSet::charactersInString(suffix)),
      prefixes_(occurrences(text_, prefix)) {}

std::vector<VariableMatch> VariableText::matches(StringView name) const {
    const StringView text = text_;
    std::vector<std::size_t> tails;
    for (const std::size_t prefix : prefixes_) {
        const std::size_t start = prefix + prefix_.size();
        if (text.substr(start).starts_with(name)) tails.push_back(start + name.size());
    }
    if (tails.empty() || suffix_.empty()) return {};
    return needsExpression(name) ? expressionMatches(name)
                                 : literalMatches(tails, prefix_.size() + name.size());
}

/// Half of a surrogate pair is found within whole ones here, but not there.
bool VariableText::needsExpression(StringView name) const {
    return isPattern(name) || hasHalfPairs(String(prefix_).append(name)) || hasHalfPairs(suffix_);
}

std::vector<VariableMatch> VariableText::expressionMatches(StringView name) const {
    const String end = escapedPattern(suffix_);
    const auto expression = RegularExpression::compile(escapedPattern(prefix_) + String(name) +
                                                       u"([^" + end + u"]*)" + end);
    if (!expression) return {};
    const std::size_t tailGroup = expression->numberOfCaptureGroups();
    std::vector<VariableMatch> matches;
    for (const RegexMatch& match : expression->matchesInString(text_)) {
        matches.push_back({match.range(), match.group(tailGroup)});
    }
    return matches;
}

// The same matches as those of the expression, in linear time: a tail ends at
// the first unit of the suffix, and is one if the suffix stands there.
std::vector<VariableMatch> VariableText::literalMatches(const std::vector<std::size_t>& tails,
                                                        std::size_t openingLength) const {
    const StringView text = text_;
    std::vector<VariableMatch> matches;
    std::size_t tailEnd = 0;
    std::size_t free = 0;
    for (const std::size_t tail : tails) {
        if (tail < free + openingLength) continue;  // begins within the variable before
        tailEnd = std::max(tail, tailEnd);
        while (tailEnd < text.size()) {
            const CodePoint next = codePointAt(text, tailEnd);
            if (endings_.contains(next.value)) break;
            tailEnd += next.length;
        }
        if (!text.substr(tailEnd).starts_with(suffix_)) continue;
        const std::size_t start = tail - openingLength;
        free = tailEnd + suffix_.size();
        matches.push_back({{start, free - start}, {tail, tailEnd - tail}});
    }
    return matches;
}

void VariableText::apply(const std::vector<VariableEdit>& edits) {
    std::vector<std::size_t> prefixes = untouchedPrefixes(edits);
    const auto untouched = static_cast<std::ptrdiff_t>(prefixes.size());
    const std::vector<std::size_t> found = prefixesAround(replace(edits));
    prefixes.insert(prefixes.end(), found.begin(), found.end());
    std::inplace_merge(prefixes.begin(), prefixes.begin() + untouched, prefixes.end());
    prefixes.erase(std::unique(prefixes.begin(), prefixes.end()), prefixes.end());
    prefixes_ = std::move(prefixes);
}

/// Where the prefixes that no edit touches stand after all of them.
std::vector<std::size_t> VariableText::untouchedPrefixes(
    const std::vector<VariableEdit>& edits) const {
    std::vector<std::size_t> untouched;
    std::size_t shift = 0;  // modulo its range: the text may have become shorter
    auto edit = edits.begin();
    for (const std::size_t prefix : prefixes_) {
        for (; edit != edits.end() && edit->range.end() <= prefix; ++edit) {
            shift += edit->text.size() - edit->range.length;
        }
        const bool isTouched =
            edit != edits.end() && edit->range.location < prefix + prefix_.size();
        if (!isTouched) untouched.push_back(prefix + shift);
    }
    return untouched;
}

/// Changes the text. Returns where the new parts stand in it.
std::vector<Range> VariableText::replace(const std::vector<VariableEdit>& edits) {
    std::vector<Range> parts;
    String edited;
    std::size_t copied = 0;
    for (const VariableEdit& edit : edits) {
        edited.append(text_, copied, edit.range.location - copied);
        parts.push_back({edited.size(), edit.text.size()});
        edited.append(edit.text);
        copied = edit.range.end();
    }
    text_ = std::move(edited.append(text_, copied));
    return parts;
}

/// Where prefixes stand that lie in parts of the text or touch their borders.
std::vector<std::size_t> VariableText::prefixesAround(const std::vector<Range>& parts) const {
    const std::size_t reach = prefix_.size() - 1;
    std::vector<std::size_t> prefixes;
    std::size_t searched = 0;
    for (const Range& part : parts) {
        const std::size_t first = std::max(part.location, searched);
        const std::size_t start = first - std::min(first, reach);
        searched = std::min(part.end() + reach, text_.size());
        const StringView around = StringView(text_).substr(start, searched - start);
        for (const std::size_t found : occurrences(around, prefix_)) {
            prefixes.push_back(start + found);
        }
    }
    return prefixes;
}

}  // namespace QZCore
