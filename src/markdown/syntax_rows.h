// The rows of the Markdown syntax table and the settings that choose them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "QZCore/foundation/text.h"
#include "QZCore/markdown/syntax.h"
#include "QZCore/platform/regex.h"
#include "markdown/scanner.h"

namespace QZCore {

/// A row, or one of the two variants of a row.
struct SyntaxRow {
    StringView key;
    ScannerKind scanner = ScannerKind::Escape;
    StringView pattern;
    std::uint32_t options = kRegexNoOptions;
    std::size_t numberOfGroups = 0;
    /// Settings that must be on, as they are by default.
    std::array<StringView, 2> switches = {};
    /// The setting, off by default, that chooses between two variants.
    StringView variantSwitch = {};
    bool isVariantWhenOn = false;
};

/// The link pattern unless a setting replaces it.
inline constexpr StringView kDefaultLinkPattern = uR"(!?\[([^\]]+)\]\(([^ \)]+)\))";

inline constexpr std::uint32_t kRegexDotMatchesAllInLines =
    kRegexDotMatchesLineSeparators | kRegexAnchorsMatchLines;

inline constexpr std::array kSyntaxRows{
    SyntaxRow{.key = kMarkdownEscape,
              .scanner = ScannerKind::Escape,
              .pattern = uR"((\\\\|\\\`|\\\*|\\\_|\\\(|\\\)|\\\[|\\\]|\\#|\\\+|\\\-|\\\!))",
              .numberOfGroups = 1},
    SyntaxRow{.key = kMarkdownItalicUnderscore,
              .scanner = ScannerKind::ItalicUnderscoreIntraword,
              .pattern = uR"((?<!_)_(?=[^ \t_])(.+?)(?<=[^ \t_])_(?!_))",
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Italic", u"Markdown Support Italic Underscore"},
              .variantSwitch = u"Markdown Support Intraword Underscore Italic",
              .isVariantWhenOn = true},
    SyntaxRow{.key = kMarkdownItalicUnderscore,
              .scanner = ScannerKind::ItalicUnderscore,
              .pattern = uR"(\b(?<!_)_(?=[^ \t_])(.+?)(?<=[^ \t_])_(?!_)\b)",
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Italic", u"Markdown Support Italic Underscore"},
              .variantSwitch = u"Markdown Support Intraword Underscore Italic"},
    SyntaxRow{.key = kMarkdownItalicAsterisk,
              .scanner = ScannerKind::ItalicAsterisk,
              .pattern = uR"((?<!\*)\*(?=[^ \t*])(.+?)(?<=[^ \t*])\*(?!\*))",
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Italic"}},
    SyntaxRow{.key = kMarkdownBold,
              .scanner = ScannerKind::Bold,
              .pattern = uR"((?<!\*)\*{2}(?=[^ \t*])(.+?)(?<=[^ \t*])\*{2}(?!\*))",
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Bold"}},
    SyntaxRow{.key = kMarkdownBoldItalic,
              .scanner = ScannerKind::BoldItalic,
              .pattern = uR"(((?<!\*)\*{3}(?=[^ \t*])(.+?)(?<=[^ \t*])\*{3}(?!\*)|)"
                         uR"((?<!_)_{3}(?=[^ \t_])(.+?)(?<=[^ \t_])_{3}(?!_)))",
              .numberOfGroups = 3,
              .switches = {u"Markdown Support Bold Italic"}},
    SyntaxRow{.key = kMarkdownUnderline,
              .scanner = ScannerKind::Underline,
              .pattern = uR"((?<!_)__(?=[^ \t_])(.+?)(?<=[^ \t_])\__(?!_))",
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Underline"}},
    SyntaxRow{.key = kMarkdownStrikethrough,
              .scanner = ScannerKind::Strikethrough,
              .pattern = uR"((?<!~)~~(?=[^ \t~])(.+?)(?<=[^ \t~])\~~(?!~))",
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Strikethrough"}},
    SyntaxRow{.key = kMarkdownHighlightEquals,
              .scanner = ScannerKind::HighlightEquals,
              .pattern = uR"((?<!=)==(?=[^ \t=])(.+?)(?<=[^ \t=])\==(?!=))",
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Highlight", u"Markdown Highlight Equals"}},
    SyntaxRow{.key = kMarkdownHighlightCaret,
              .scanner = ScannerKind::HighlightCaret,
              .pattern = uR"((?<!\^)\^\^(?=[^ \t\^])(.+?)(?<=[^ \t\^])\^\^(?!\^))",
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Highlight", u"Markdown Highlight Caret"}},
    SyntaxRow{.key = kMarkdownHighlightColon,
              .scanner = ScannerKind::HighlightColon,
              .pattern = uR"((?<!:)::(?=[^ \t:])(.+?)(?<=[^ \t:])\::(?!:))",
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Highlight", u"Markdown Highlight Colon"}},
    SyntaxRow{.key = kMarkdownInlineCode,
              .scanner = ScannerKind::InlineCode,
              .pattern = u"(?<!`)(`{1,3})([^`\n]+?)\\1(?!`)",
              .numberOfGroups = 2,
              .switches = {u"Markdown Support Inline Code"}},
    SyntaxRow{.key = kMarkdownLink,
              .scanner = ScannerKind::Link,
              .pattern = kDefaultLinkPattern,
              .numberOfGroups = 2,
              .switches = {u"Markdown Support Links"}},
    SyntaxRow{.key = kMarkdownHeaders,
              .scanner = ScannerKind::HeadersNoSpace,
              .pattern = uR"(^(\#{1,6})[ ]*(.+)$)",
              .options = kRegexAnchorsMatchLines,
              .numberOfGroups = 2,
              .switches = {u"Markdown Support Header"},
              .variantSwitch = u"Markdown Regex Header No Space",
              .isVariantWhenOn = true},
    SyntaxRow{.key = kMarkdownHeaders,
              .scanner = ScannerKind::Headers,
              .pattern = uR"(^(\#{1,6})[ ](.+)$)",
              .options = kRegexAnchorsMatchLines,
              .numberOfGroups = 2,
              .switches = {u"Markdown Support Header"},
              .variantSwitch = u"Markdown Regex Header No Space"},
    SyntaxRow{.key = kMarkdownEmoji,
              .scanner = ScannerKind::Emoji,
              .pattern = uR"(:([a-z0-9-+_]+):)",
              .options = kRegexCaseInsensitive,
              .numberOfGroups = 1,
              .switches = {u"Markdown Support Emoji"}},
    SyntaxRow{.key = kMarkdownCodeBlock,
              .scanner = ScannerKind::CodeBlock,
              .pattern = uR"(```\n([\s\S]+?)(```\n?))",
              .options = kRegexDotMatchesLineSeparators,
              .numberOfGroups = 2,
              .switches = {u"Markdown Support Code Blocks"}},
    SyntaxRow{.key = kMarkdownBlockQuote,
              .scanner = ScannerKind::BlockQuote,
              .pattern = uR"(^(>)[ ]*(.+)$)",
              .options = kRegexAnchorsMatchLines,
              .numberOfGroups = 2,
              .switches = {u"Markdown Support Block Quote"}},
    SyntaxRow{.key = kMarkdownList,
              .scanner = ScannerKind::List,
              .pattern = uR"(^[ \t]*([*+-]|\d+[.])[ \t](.+?)(?:\z|\n\n))",
              .options = kRegexDotMatchesAllInLines,
              .numberOfGroups = 2,
              .switches = {u"Markdown Support Lists"}},
    SyntaxRow{.key = kMarkdownListLine,
              .scanner = ScannerKind::ListLine,
              .pattern = uR"((^[ \t]*)([*+-]|\d+[.])[ \t](.+)$)",
              .options = kRegexAnchorsMatchLines,
              .numberOfGroups = 3,
              .switches = {u"Markdown Support Lists"}},
    SyntaxRow{.key = kMarkdownTable,
              .scanner = ScannerKind::Table,
              .pattern = uR"(^[\|\-\+\:\.][ \-\+\|\:\.]*?\|[ \-\+\|\:\.]*)",
              .options = kRegexAnchorsMatchLines,
              .switches = {u"Markdown Support Tables"}},
    SyntaxRow{.key = kMarkdownInlineMeta,
              .scanner = ScannerKind::InlineMeta,
              .pattern = uR"((?>^|\s)([#@][\w]+[-.=\/]?[\w]+))",
              .options = kRegexCaseInsensitive | kRegexDotMatchesLineSeparators,
              .numberOfGroups = 1},
};

}  // namespace QZCore
