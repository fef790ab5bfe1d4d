#include "QZCore/markdown/syntax.h"

#include <algorithm>
#include <utility>

#include "markdown/syntax_rows.h"

namespace QZCore {

namespace {

constexpr StringView kLinkPatternSetting = u"Markdown RegEx Link";

bool isPresent(const SyntaxRow& row, const Preferences& preferences) {
    for (const StringView name : row.switches) {
        if (!name.empty() && !preferences.boolForKey(name, true)) return false;
    }
    return row.variantSwitch.empty() ||
           preferences.boolForKey(row.variantSwitch) == row.isVariantWhenOn;
}

}  // namespace

MarkdownSyntax::MarkdownSyntax(const Preferences& preferences) {
    const String linkPattern = preferences.stringForKey(kLinkPatternSetting, kDefaultLinkPattern);
    for (const SyntaxRow& row : kSyntaxRows) {
        if (!isPresent(row, preferences)) continue;
        if (row.scanner != ScannerKind::Link || linkPattern == row.pattern) {
            expressions_.push_back(MarkdownExpression(row));
        } else if (auto replacement = RegularExpression::compile(linkPattern, row.options)) {
            expressions_.push_back(MarkdownExpression(row, *std::move(replacement)));
        }
    }
}

const MarkdownExpression* MarkdownSyntax::expressionForKey(StringView key) const {
    const auto found = std::ranges::find(expressions_, key, &MarkdownExpression::key);
    return found == expressions_.end() ? nullptr : &*found;
}

MarkdownSyntax markdownSyntaxFromPreferences(const Preferences& preferences) {
    return MarkdownSyntax(preferences);
}

const MarkdownSyntax& allMarkdownRegex() {
    static const auto& syntax = *new MarkdownSyntax(Preferences::shared());
    return syntax;
}

}  // namespace QZCore
