// The scanners against the regular expressions that define them.
#include <algorithm>
#include <random>

#include "QZCore/codecs/parsing.h"
#include "QZCore/platform/regex.h"
#include "markdown/scanner.h"
#include "markdown/syntax_rows.h"
#include "support/engine_matches.h"
#include "support/exact_copy.h"
#include "support/printing.h"

namespace QZCore {

namespace {

using testing::ExactCopy;

// The pieces that a row's pattern tells apart, with commas between.
constexpr struct {
    ScannerKind scanner;
    StringView pieces;
} kOwnPieces[] = {
    {ScannerKind::Escape, u"\\,\\,`,*,_,(,],#,!"},
    {ScannerKind::ItalicUnderscore, u"_,_,__,_a,a_,-"},
    {ScannerKind::ItalicUnderscoreIntraword, u"_,_,__,_a,a_,-"},
    {ScannerKind::Underline, u"_,_,__,_a,a_,-"},
    {ScannerKind::ItalicAsterisk, u"*,*,**,*a,a**,_"},
    {ScannerKind::Bold, u"*,*,**,*a,a**,_"},
    {ScannerKind::BoldItalic, u"***,***,___,___,*,_,***a,___a,a***,a___"},
    {ScannerKind::Strikethrough, u"~~,~,~~a,a~~"},
    {ScannerKind::HighlightEquals, u"==,=,==a,a=="},
    {ScannerKind::HighlightCaret, u"^^,^,^^a,a^^"},
    {ScannerKind::HighlightColon, u"::,:,::a,a::"},
    {ScannerKind::InlineCode, u"`,`,``,```,a`"},
    {ScannerKind::Link, u"[,],(,),](,!,![a](,[b](c)"},
    {ScannerKind::Headers, u"#,#,##,\n#,# ,######, "},
    {ScannerKind::HeadersNoSpace, u"#,#,##,\n#,# ,######, "},
    {ScannerKind::Emoji, u":,:,:,_,-,+,Z,9,@,["},
    {ScannerKind::CodeBlock, u"```\n,```,`,\n,\n```\n"},
    {ScannerKind::BlockQuote, u">,\n>,> ,>  , "},
    {ScannerKind::List, u"-,*,+,\n- ,1.,\n12. ,.,\n\n,\r\n\n, "},
    {ScannerKind::ListLine, u"-,*,+,\n- ,1.,\n12. ,.,\n\n,\r\n\n, "},
    {ScannerKind::Table, u"|,|,-,+,:,., ,\n|-,\n-"},
    {ScannerKind::InlineMeta, u"#,@, #,\n@, #ab,-,.,=,/,_,ab"},
};

// Letters, blanks, line ends, and what tells character properties apart.
constexpr StringView kCommonPieces[] = {
    u"a",      u"b",      u"Z",      u"7",          u" ",          u" ",      u"\t",
    u"\n",     u"\n",     u"\r",     u"\r\n",       u"\x85",       u"\v",     u"\f",
    u"\u2028", u"\u2029", u"\u0301", u"\u200D",     u"\u200C",     u"\u00AD", u"\u0663",
    u"\u00A0", u"\u3000", u"\u017F", u"\u212A",     u"\U0001D7CE", u"\xD83D", u"\xDE00",
    u"\u6F22", u"\u203F", u"-",      u"\U0001F600", u"\u0345",     u"\u24B6", u"\U000E0101",
};

class TextMaker {
public:
    explicit TextMaker(ScannerKind kind) : random_(static_cast<unsigned>(kind) + 1) {
        const auto* row =
            std::ranges::find(kOwnPieces, kind, [](auto& own) { return own.scanner; });
        own_ = componentsSeparatedByPattern(row->pieces, u",");
    }

    String next() {
        String text;
        for (std::size_t pieces = below(22); pieces > 0; --pieces) {
            text += below(5) < 3 ? StringView(own_[below(own_.size())])
                                 : kCommonPieces[below(std::size(kCommonPieces))];
        }
        // Some texts are longer than the blocks in which units are searched.
        if (below(8) == 0) text.insert(below(text.size() + 1), below(70), u'x');
        return text;
    }

private:
    std::size_t below(std::size_t bound) { return random_() % bound; }

    std::vector<String> own_;
    std::mt19937 random_;
};

Range rangeOf(SpanMatch::Span span) {
    if (span == SpanMatch::Span{}) return kNotFoundRange;
    return {span.start, span.end - span.start};
}

std::vector<std::vector<Range>> scannedRanges(const SyntaxRow& row, StringView text,
                                              std::size_t limit = SIZE_MAX) {
    std::vector<SpanMatch> matches;
    scanMatches(row.scanner, text, matches, limit);
    std::vector<std::vector<Range>> ranges;
    for (const SpanMatch& match : matches) {
        ranges.push_back({rangeOf(match.whole)});
        for (std::size_t i = 0; i < row.numberOfGroups; ++i) {
            ranges.back().push_back(rangeOf(match.groups[i]));
        }
    }
    return ranges;
}

std::vector<std::vector<Range>> searchedRanges(const RegularExpression& expression,
                                               StringView text) {
    std::vector<std::vector<Range>> ranges;
    for (RegexMatch& match : expression.matchesInString(text)) {
        ranges.push_back(std::move(match.groups));
    }
    return ranges;
}

}  // namespace

TEST_CASE("every scanner finds what its regular expression finds, groups included") {
    for (const SyntaxRow& row : kSyntaxRows) {
        const auto expression = RegularExpression::compile(row.pattern, row.options);
        REQUIRE(expression);
        CAPTURE(expression->pattern());
        REQUIRE(expression->numberOfCaptureGroups() == row.numberOfGroups);
        TextMaker texts(row.scanner);
        std::size_t found = 0;
        for (int i = testing::equalityTexts(20'000); i > 0; --i) {
            const ExactCopy copy(texts.next());
            const StringView text = copy;
            const auto expected = searchedRanges(*expression, text);
            if (scannedRanges(row, text) != expected) {
                CAPTURE(text);
                REQUIRE(scannedRanges(row, text) == expected);
            }
            found += expected.size();
        }
        CHECK(found > 1000);
    }
}

TEST_CASE("a search with a limit finds the first matches") {
    for (const SyntaxRow& row : kSyntaxRows) {
        TextMaker texts(row.scanner);
        for (int i = 0; i < 1000; ++i) {
            const String text = texts.next();
            auto expected = scannedRanges(row, text);
            for (const std::size_t limit : {2U, 1U, 0U}) {
                if (expected.size() > limit) expected.resize(limit);
                REQUIRE(scannedRanges(row, text, limit) == expected);
            }
        }
    }
}

}  // namespace QZCore
