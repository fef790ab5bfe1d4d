// The Markdown dialect: its constructs, and the table of the expressions that
// define them.
//
// A construct is known by its key. Its expression is found in a
// `MarkdownSyntax`, which leaves out what the user has switched off, so that a
// construct that is off is neither detected nor rendered. Positions count UTF-16
// units. Texts should end their lines with line feeds alone: where a construct
// ends at a blank line or keeps to a line, carriage returns have the effects
// that are stated below. A backslash takes the meaning from the character behind
// it when it is one of those of `kMarkdownEscape`; detection and rendering look
// at escapes before everything else, the expressions by themselves do not.
//
// A table is immutable once it is built and may be used from any thread.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/preferences.h"
#include "QZCore/foundation/text.h"
#include "QZCore/platform/regex.h"

namespace QZCore {

// ---- Keys of the constructs, in the order of the table -----------------------

/// A backslash before one of \ ` * _ ( ) [ ] # + - ! stands for that character
/// without its meaning. Group 1 is the whole. Always on.
inline constexpr StringView kMarkdownEscape = u"escape";

/// `_italic_`. Group 1 is the content. The underscores must stand outside of
/// words: `snake_case_name` stays as it is, and between ideographs, which count
/// as letters, nothing becomes italic; use asterisks there. With "Markdown
/// Support Intraword Underscore Italic" on, underscores inside words count too.
///
/// All paired delimiters follow the same rules, here and in the rows below: a
/// run of exactly that many characters opens when no blank or tab follows it
/// and closes when none precedes it; the first closing run in the line ends the
/// construct; content does not cross a line end. So `2 * 3 * 4` and
/// `f(*args, **kwargs)` stay as they are, and `5*3*2` has an italic 3.
inline constexpr StringView kMarkdownItalicUnderscore = u"italicUnderscore";

/// `*italic*`. Group 1 is the content. Words do not matter, so it works inside
/// of them and between ideographs.
inline constexpr StringView kMarkdownItalicAsterisk = u"italicAsterisk";

/// `**bold**`. Group 1 is the content. In `*a***b**` nothing is bold or italic:
/// the three asterisks in its middle are neither one nor two.
inline constexpr StringView kMarkdownBold = u"bold";

/// `***bold italic***` with the content in group 2, or the same with three
/// underscores and the content in group 3. Group 1 is the whole.
inline constexpr StringView kMarkdownBoldItalic = u"boldItalic";

/// `__underlined__`. Group 1 is the content.
inline constexpr StringView kMarkdownUnderline = u"underline";

/// `~~struck through~~`. Group 1 is the content.
inline constexpr StringView kMarkdownStrikethrough = u"strikethrough";

/// `==highlighted==`. Group 1 is the content.
inline constexpr StringView kMarkdownHighlightEquals = u"highlightEquals";

/// `^^highlighted^^`. Group 1 is the content.
inline constexpr StringView kMarkdownHighlightCaret = u"highlightCaret";

/// `::highlighted::`. Group 1 is the content.
inline constexpr StringView kMarkdownHighlightColon = u"highlightColon";

/// Code between runs of one, two or three backticks. Group 1 is the opening run,
/// group 2 the code, which holds no backtick and no line feed; other line ends
/// may be in it.
inline constexpr StringView kMarkdownInlineCode = u"inlineCode";

/// `[text](target)`, and with a leading `!` an image. Group 1 is the text, group
/// 2 the target. The text may hold opening brackets and line ends, so a lone `[`
/// reaches up to the next `](`, across paragraphs if need be. The target holds
/// no blank and ends at the first closing parenthesis, even if it holds an
/// opening one. The preference "Markdown RegEx Link" replaces the pattern; the
/// new one should keep the two groups.
inline constexpr StringView kMarkdownLink = u"link";

/// One to six hashes at the start of a line, one blank, and the title. Group 1
/// is the hashes, group 2 the title, in which further blanks and closing hashes
/// stay. With "Markdown Regex Header No Space" on, any number of blanks may
/// stand between them, also none, and seven hashes are six and a title.
inline constexpr StringView kMarkdownHeaders = u"headers";

/// `:short-code:`, letters in upper or lower case. Group 1 is the code. Any code
/// counts, the 30 of `10:30:45` too.
inline constexpr StringView kMarkdownEmoji = u"emoji";

/// Code between three backticks with a line feed behind them and the next three
/// backticks. Group 1 is the code, group 2 the closing fence with its line feed.
/// No language may be named after the fence; in a text whose fences name one, the
/// closing fence of a block is the first that opens, and code and prose change
/// places. With CR LF line ends no fence opens.
inline constexpr StringView kMarkdownCodeBlock = u"codeBlock";

/// A line that starts with `>`, also a lone one with a blank behind it. Group 1
/// is the mark, group 2 the quoted text without its leading blanks.
inline constexpr StringView kMarkdownBlockQuote = u"blockQuote";

/// A whole list, from a line with an item marker up to and including the first
/// blank line (two line feeds), or to the end of the text. Group 1 is the marker
/// of the first item, group 2 the rest. A marker is `*`, `+`, `-` or digits with
/// a full stop, a blank or tab behind it. With CR LF line ends there is no blank
/// line, and a list goes on to the end of the text.
inline constexpr StringView kMarkdownList = u"list";

/// One line of a list. Group 1 is the indentation, group 2 the marker, group 3
/// the item.
inline constexpr StringView kMarkdownListLine = u"listLine";

/// The start of a line that consists of `|`, `-`, `+`, `:`, `.` and blanks, with
/// a bar behind its first character and no blank in front: the line between the
/// head of a table and its rows. No groups.
inline constexpr StringView kMarkdownTable = u"table";

/// A tag or mention: `#` or `@` and a name of word characters, which may hold
/// one of - . = / inside. It stands at the start of the text or after white
/// space, which belongs to the match. Group 1 is the sign and the name. Names of
/// one character do not count, nor does a tag behind a single white-space
/// character at the very start of the text. Always on.
inline constexpr StringView kMarkdownInlineMeta = u"inlineMeta";

/// The constructs that count as rich text in detection, in the order in which
/// they are looked for.
inline constexpr std::array<StringView, 12> kMarkdownRichTextKeys{
    kMarkdownItalicUnderscore, kMarkdownItalicAsterisk, kMarkdownBold,
    kMarkdownBoldItalic,       kMarkdownUnderline,      kMarkdownStrikethrough,
    kMarkdownHighlightEquals,  kMarkdownHighlightCaret, kMarkdownHighlightColon,
    kMarkdownInlineCode,       kMarkdownLink,           kMarkdownHeaders,
};

// ---- The table ----------------------------------------------------------------

struct SpanMatch;
struct SyntaxRow;
enum class ScannerKind;

/// The expression of one construct. Searching takes time linear in the text,
/// whatever the text. An expression that replaces the one for links is searched
/// under the budget of `RegularExpression` instead.
class QZ_EXPORT MarkdownExpression {
public:
    /// The key of the construct.
    [[nodiscard]] StringView key() const { return key_; }
    /// The regular expression that defines the matches.
    [[nodiscard]] const String& pattern() const { return pattern_; }
    /// The sum of the expression's `RegexOptions`.
    [[nodiscard]] std::uint32_t options() const { return options_; }
    /// The number of capture groups.
    [[nodiscard]] std::size_t numberOfCaptureGroups() const { return numberOfGroups_; }

    // A text of 2^32 - 1 units or more has no matches.

    /// All matches that do not overlap, from the start on.
    [[nodiscard]] std::vector<RegexMatch> matchesInString(StringView text) const;
    /// The first match.
    [[nodiscard]] std::optional<RegexMatch> firstMatchInString(StringView text) const;
    /// The number of matches.
    [[nodiscard]] std::size_t numberOfMatchesInString(StringView text) const;

private:
    friend class MarkdownSyntax;
    friend void findMatches(const MarkdownExpression& expression, StringView text,
                            std::vector<SpanMatch>& matches, std::size_t limit);

    explicit MarkdownExpression(const SyntaxRow& row);
    MarkdownExpression(const SyntaxRow& row, RegularExpression replacement);

    StringView key_;
    String pattern_;
    std::uint32_t options_;
    std::size_t numberOfGroups_;
    ScannerKind scanner_;
    std::optional<RegularExpression> replacement_;  // instead of the scanner
};

/// The expressions of the constructs that are switched on.
class QZ_EXPORT MarkdownSyntax {
public:
    /// Reads the switches of `preferences`, once and for all. A link pattern
    /// that is no regular expression leaves links out.
    explicit MarkdownSyntax(const Preferences& preferences);

    /// The expression of the construct; null when it is switched off or there is
    /// none of that name. Valid as long as the table.
    [[nodiscard]] const MarkdownExpression* expressionForKey(StringView key) const;
    /// All expressions in the order of the keys above.
    [[nodiscard]] const std::vector<MarkdownExpression>& expressions() const {
        return expressions_;
    }

private:
    std::vector<MarkdownExpression> expressions_;
};

/// The table for the given settings.
[[nodiscard]] QZ_EXPORT MarkdownSyntax
markdownSyntaxFromPreferences(const Preferences& preferences);

/// The table of the process, built at the first call from the shared
/// preferences. A switch that changes later takes effect in the next process.
[[nodiscard]] QZ_EXPORT const MarkdownSyntax& allMarkdownRegex();

}  // namespace QZCore
