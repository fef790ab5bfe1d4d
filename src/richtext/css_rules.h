// Style sheets: which declarations an element gets.
//
// Selectors are lists of compounds of a type, classes and an identifier, with
// blanks between them for elements within others and ">" for those directly
// within. Of pseudo-classes ":link" and ":root" select something. A rule with
// any other selector is left out, and so are at-rules.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "richtext/css_declarations.h"

namespace QZCore {

/// What selectors ask of an element: its type, classes ("." before them),
/// pseudo-classes (":") and identifier ("#"), as numbers of one `CssNames`.
using CssKeys = std::vector<std::uint32_t>;

/// The keys of an element, and the element around it.
struct CssPlace {
    const CssKeys* keys = nullptr;
    const CssPlace* around = nullptr;
};

/// Numbers names, so that they compare quickly.
class CssNames {
public:
    /// The number of `name`.
    [[nodiscard]] std::uint32_t numberOf(StringView name);

private:
    std::unordered_map<String, std::uint32_t> numbers_;
};

/// Rules in the order in which they were read.
class CssRules {
public:
    /// `names` must outlive this.
    explicit CssRules(CssNames& names) : names_(names) {}

    /// Adds the rules of a style sheet.
    void add(StringView sheet);

    /// The declarations of the rules that select an element; the rule that wins
    /// comes last. Only so many rules and elements around are looked at that the
    /// cost has a bound.
    [[nodiscard]] std::vector<const CssDeclarations*> declarationsFor(
        const CssPlace& element) const;

private:
    struct Compound {
        CssKeys keys;
        bool isChild = false;  // of an element that the compound before selects
    };
    struct Rule {
        std::vector<Compound> compounds;  // of a selector, the outermost first
        std::uint32_t specificity = 0;
        std::size_t declarations = 0;  // by index
    };

    void addRule(StringView selectors, StringView block);
    [[nodiscard]] bool readSelector(StringView selector, Rule& rule);
    [[nodiscard]] bool readCompound(StringView compound, bool isChild, Rule& rule);
    void keep(Rule rule);
    [[nodiscard]] static bool selects(const Rule& rule, const CssPlace& element);

    CssNames& names_;
    std::vector<Rule> rules_;
    std::vector<CssDeclarations> declarations_;
    std::unordered_map<std::uint32_t, std::vector<std::uint32_t>>
        rulesOf_;  // by a key they ask for
};

}  // namespace QZCore
