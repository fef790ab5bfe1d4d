#include "QZCore/markdown/emoji.h"
#include "markdown/passes.h"

namespace QZCore {

void renderEmoji(RenderingContext& context, const MarkdownExpression& expression) {
    if (context.text.find(expression).empty()) return;
    context.text.apply([&](const SpanMatch& match, std::uint32_t id) {
        const SpanMatch::Span code = match.groups[0];
        const auto emoji =
            emojiForShortcode(context.text.searchCopy().substr(code.start, code.end - code.start));
        return emoji ? MatchEdit::replace(*emoji, id) : MatchEdit::leave();
    });
}

}  // namespace QZCore
