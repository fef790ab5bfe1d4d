// The Markdown syntax: what a construct's search finds is what its regular
// expression finds.
#include "QZCore/foundation/data.h"
#include "QZCore/markdown/detection.h"
#include "require.h"

using namespace QZCore;

namespace {

// The engines of a table's expressions, in their order.
struct Oracle {
    explicit Oracle(const Dictionary& settings) : syntax(Preferences(settings)) {
        for (const MarkdownExpression& expression : syntax.expressions()) {
            engines.push_back(
                *RegularExpression::compile(expression.pattern(), expression.options()));
        }
    }

    void requireEqualMatches(StringView text) const {
        for (std::size_t i = 0; i < engines.size(); ++i) {
            require(engines[i].matchesInString(text) ==
                    syntax.expressions()[i].matchesInString(text));
        }
    }

    MarkdownSyntax syntax;
    std::vector<RegularExpression> engines;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const String text = fromUTF8(textOf({data, size}));
    static const auto& usual = *new Oracle(Dictionary{});
    static const auto& otherVariants =
        *new Oracle({{u"Markdown Support Intraword Underscore Italic", true},
                     {u"Markdown Regex Header No Space", true}});
    usual.requireEqualMatches(text);
    otherVariants.requireEqualMatches(text);
    require(!containsMarkdownRichText(text) || containsMarkdown(text));
    require(!containsMarkdownListOnly(text) || containsMarkdown(text));
    require(!isTaskPaperOutline(text) || text.find(u':') != String::npos);
    return 0;
}
