#include "QZCore/markdown/emoji.h"
#include "markdown/passes.h"

namespace QZCore {
namespace {

class EmojiEditor final : public MatchEditor {
public:
    explicit EmojiEditor(const RenderText& text) : text_(text) {}

    MatchEdit edit(const SpanMatch& match, std::uint32_t id) override {
        const SpanMatch::Span code = match.groups[0];
        const auto emoji =
            emojiForShortcode(text_.searchCopy().substr(code.start, code.end - code.start));
        return emoji ? MatchEdit::replace(*emoji, id) : MatchEdit::leave();
    }

private:
    const RenderText& text_;
};

}  // namespace

Pass emojiPass(RenderingContext& context) { return std::make_unique<EmojiEditor>(context.text); }

}  // namespace QZCore
