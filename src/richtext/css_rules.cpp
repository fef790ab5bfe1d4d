#include "richtext/css_rules.h"

#include <algorithm>
#include <utility>

namespace QZCore {
namespace {

// Bounds that no page of people reaches, and that keep a hostile one linear.
constexpr std::size_t kMostRulesOfAKey = 128;
constexpr std::size_t kMostCompounds = 16;
constexpr std::size_t kMostElementsAround = 64;

constexpr StringView kAnyType = u"*";
constexpr StringView kMarks = u".#:";  // of classes, identifiers and pseudo-classes

/// `sheet` with a blank for each comment.
String withoutComments(StringView sheet) {
    String plain;
    plain.reserve(sheet.size());
    while (!sheet.empty()) {
        const std::size_t start = std::min(sheet.find(u"/*"), sheet.size());
        plain += sheet.substr(0, start);
        const std::size_t end = sheet.find(u"*/", std::min(start + 2, sheet.size()));
        if (start < sheet.size()) plain += u' ';
        sheet.remove_prefix(end == StringView::npos ? sheet.size() : end + 2);
    }
    return plain;
}

/// The brace that closes the block which starts at `from`, or the length.
std::size_t endOfBlock(StringView sheet, std::size_t from) {
    std::size_t depth = 0;
    for (std::size_t at = from; at < sheet.size(); ++at) {
        at = findInCss(sheet, at, u"{}");
        if (at == sheet.size()) break;
        if (sheet[at] == u'}' && depth-- == 0) return at;
        if (sheet[at] == u'{') ++depth;
    }
    return sheet.size();
}

bool hasAll(const CssKeys& element, const CssKeys& wanted) {
    return std::ranges::all_of(wanted, [&](std::uint32_t key) {
        return std::ranges::find(element, key) != element.end();
    });
}

}  // namespace

std::uint32_t CssNames::numberOf(StringView name) {
    const auto next = static_cast<std::uint32_t>(numbers_.size());
    return numbers_.try_emplace(String(name), next).first->second;
}

void CssRules::add(StringView sheet) {
    const String plain = withoutComments(sheet);
    sheet = plain;
    for (std::size_t at = 0; at < sheet.size();) {
        const std::size_t open = findInCss(sheet, at, u"{;");
        StringView prelude = trimmedOfWhitespaceAndNewlines(sheet.substr(at, open - at));
        // Sheets were once hidden from old browsers in a comment of HTML.
        if (prelude.starts_with(u"<!--")) prelude.remove_prefix(4);
        at = open + 1;
        if (open == sheet.size() || sheet[open] == u';') continue;
        const std::size_t end = endOfBlock(sheet, at);
        if (!prelude.starts_with(u'@')) addRule(prelude, sheet.substr(at, end - at));
        at = end + 1;
    }
}

void CssRules::addRule(StringView selectors, StringView block) {
    const std::size_t index = declarations_.size();
    declarations_.push_back(cssDeclarationsOf(block));
    for (std::size_t at = 0; at < selectors.size();) {
        const std::size_t end = findInCss(selectors, at, u",");
        Rule rule;
        rule.declarations = index;
        if (readSelector(selectors.substr(at, end - at), rule)) keep(std::move(rule));
        at = end + 1;
    }
}

void CssRules::keep(Rule rule) {
    std::vector<std::uint32_t>& rules = rulesOf_[rule.compounds.back().keys.back()];
    if (rules.size() == kMostRulesOfAKey) return;
    rules.push_back(static_cast<std::uint32_t>(rules_.size()));
    rules_.push_back(std::move(rule));
}

bool CssRules::readSelector(StringView selector, Rule& rule) {
    bool isChild = false;  // the next compound
    for (std::size_t at = 0; at < selector.size();) {
        const std::size_t end = findInCss(selector, at, u" \t\n\f>");
        const StringView compound = selector.substr(at, end - at);
        if (!compound.empty()) {
            if (!readCompound(compound, isChild, rule)) return false;
            isChild = false;
        }
        const bool isMark = end < selector.size() && selector[end] == u'>';
        if (isMark && (isChild || rule.compounds.empty())) return false;
        isChild = isChild || isMark;
        at = end + 1;
    }
    return !rule.compounds.empty() && !isChild;
}

/// The key that fewest elements have comes last.
bool CssRules::readCompound(StringView compound, bool isChild, Rule& rule) {
    constexpr std::uint32_t kSpecificityOfClass = 1 << 8;
    constexpr std::uint32_t kSpecificityOfIdentifier = 1 << 16;
    CssKeys keys;
    while (!compound.empty()) {
        const bool isType = kMarks.find(compound.front()) == kMarks.npos;
        const std::size_t end =
            std::min(compound.find_first_of(u".#:+~[", isType ? 0 : 1), compound.size());
        const StringView name = compound.substr(0, end);
        if (name.size() < (isType ? 1U : 2U) || keys.size() == kMostCompounds) return false;
        keys.push_back(names_.numberOf(isType ? inAsciiLowerCase(name) : String(name)));
        if (!isType) {
            rule.specificity +=
                name.front() == u'#' ? kSpecificityOfIdentifier : kSpecificityOfClass;
        } else if (name != kAnyType) {
            ++rule.specificity;
        }
        compound.remove_prefix(end);
    }
    if (rule.compounds.size() == kMostCompounds) return false;
    rule.compounds.push_back({std::move(keys), isChild});
    return true;
}

/// Goes outwards. What stands directly within something else is found together
/// with that; of elements anywhere around, the nearest that fits is as good as
/// any.
bool CssRules::selects(const Rule& rule, const CssPlace& element) {
    const CssPlace* start = &element;  // of the compounds that belong together
    std::size_t left = rule.compounds.size();
    for (std::size_t seen = 0; start != nullptr && seen <= kMostElementsAround; ++seen) {
        std::size_t open = left;
        const CssPlace* at = start;
        bool goesOn = true;
        for (; goesOn && at != nullptr && hasAll(*at->keys, rule.compounds[open - 1].keys);
             at = at->around) {
            goesOn = rule.compounds[--open].isChild;
        }
        const bool fits = !goesOn;
        if (fits && open == 0) return true;
        if (!fits && left == rule.compounds.size()) return false;
        if (fits) left = open;
        start = fits ? at : start->around;
    }
    return false;
}

std::vector<const CssDeclarations*> CssRules::declarationsFor(const CssPlace& element) const {
    std::vector<std::uint32_t> found;
    for (const std::uint32_t key : *element.keys) {
        const auto rules = rulesOf_.find(key);
        if (rules == rulesOf_.end()) continue;
        std::ranges::copy_if(rules->second, std::back_inserter(found),
                             [&](std::uint32_t index) { return selects(rules_[index], element); });
    }
    std::ranges::sort(found, {}, [&](std::uint32_t index) {
        return std::pair(rules_[index].specificity, index);
    });
    std::vector<const CssDeclarations*> declarations;
    declarations.reserve(found.size());
    for (const std::uint32_t index : found) {
        declarations.push_back(&declarations_[rules_[index].declarations]);
    }
    return declarations;
}

}  // namespace QZCore
