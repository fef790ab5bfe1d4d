#include "detection_report.h"

#include "QZCore/markdown/detection.h"
#include "QZCore/markdown/syntax.h"

namespace qznote {
namespace {

using namespace QZCore;

struct Label {
    StringView key;
    const char* name;
};

constexpr Label kLabels[] = {
    {kMarkdownEscape, "escapes"},
    {kMarkdownHeaders, "headers"},
    {kMarkdownItalicAsterisk, "italic with asterisks"},
    {kMarkdownItalicUnderscore, "italic with underscores"},
    {kMarkdownBold, "bold"},
    {kMarkdownBoldItalic, "bold italic"},
    {kMarkdownUnderline, "underline"},
    {kMarkdownStrikethrough, "strikethrough"},
    {kMarkdownHighlightEquals, "highlights with equals signs"},
    {kMarkdownHighlightCaret, "highlights with carets"},
    {kMarkdownHighlightColon, "highlights with colons"},
    {kMarkdownInlineCode, "inline code"},
    {kMarkdownCodeBlock, "code blocks"},
    {kMarkdownLink, "links and images"},
    {kMarkdownEmoji, "emoji"},
    {kMarkdownBlockQuote, "block quotes"},
    {kMarkdownList, "lists"},
    {kMarkdownTable, "tables"},
    {kMarkdownInlineMeta, "tags and mentions"},
};

struct Question {
    const char* name;
    bool (*answer)(StringView text);
};

constexpr Question kQuestions[] = {
    {"contains rich text", [](StringView text) { return containsMarkdownRichText(text); }},
    {"is a list", [](StringView text) { return containsMarkdownListOnly(text); }},
    {"is a table", [](StringView text) { return containsMarkdownTableOnly(text); }},
    {"is a task outline", [](StringView text) { return isTaskPaperOutline(text); }},
};

/// `text` with a placeholder in place of every escape, as detection sees it.
String withoutEscapes(StringView text) {
    String plain(text);
    const MarkdownExpression* escapes = allMarkdownRegex().expressionForKey(kMarkdownEscape);
    for (const RegexMatch& escape : escapes->matchesInString(text)) {
        const Range range = escape.range();
        plain.replace(range.location, range.length, range.length, u'@');
    }
    return plain;
}

}  // namespace

std::string detectionReport(StringView note) {
    const String plain = withoutEscapes(note);
    std::string report;
    for (const Label& label : kLabels) {
        const MarkdownExpression* expression = allMarkdownRegex().expressionForKey(label.key);
        if (expression == nullptr) continue;
        const StringView text = label.key == kMarkdownEscape ? note : StringView(plain);
        const std::size_t count = expression->numberOfMatchesInString(text);
        if (count > 0) report += std::string(label.name) + ": " + std::to_string(count) + "\n";
    }
    for (const Question& question : kQuestions) {
        report += std::string(question.name) + (question.answer(note) ? ": yes\n" : ": no\n");
    }
    return report;
}

}  // namespace qznote
