// Pairs of delimiters: emphasis, underlines and highlights.
//
// Whether a run of delimiters opens or closes depends on the run and its
// neighbours alone, never on its partner: both are exactly as long as the style
// says; an opening run has no blank behind it, a closing run none before it.
// An opening run takes the next closing run of its line. So the search for
// closing runs only ever moves forward, and every unit is looked at twice.
#include "markdown/delimiter_run.h"
#include "markdown/row_scanners.h"
#include "platform/characters.h"

namespace QZCore {

namespace {

bool isBlank(char16_t unit) { return unit == u' ' || unit == u'\t'; }

bool wordEndsAt(StringView text, std::size_t index) {
    while (index > 0) {
        const CodePoint before = codePointBefore(text, index);
        if (!isCombiningOrFormat(before.value)) return isWordCharacter(before.value);
        index -= before.length;
    }
    return false;
}

bool wordGoesOnAt(StringView text, std::size_t index) {
    if (index == text.size()) return false;
    const char32_t next = codePointAt(text, index).value;
    return isCombiningOrFormat(next) || isWordCharacter(next);
}

// The runs of one style in one text.
class DelimiterPairs {
public:
    DelimiterPairs(StringView text, DelimiterStyle style) : text_(text), style_(style) {}

    // The run that closes `opener`; an empty run when `opener` does not open or
    // nothing closes it. Openers must come from left to right.
    DelimiterRun closerOf(DelimiterRun opener) {
        if (!opens(opener)) return {};
        if (reached_.start < opener.end) reached_ = closerOrLineEnd(opener.end);
        return reached_.length() > 0 ? reached_ : DelimiterRun{};
    }

private:
    [[nodiscard]] bool opens(DelimiterRun run) const {
        return run.length() == style_.length && run.end < text_.size() &&
               !isBlank(text_[run.end]) && !(isWordBound() && wordEndsAt(text_, run.start));
    }

    [[nodiscard]] bool closes(DelimiterRun run) const {
        return run.length() == style_.length && !isBlank(text_[run.start - 1]) &&
               !(isWordBound() && wordGoesOnAt(text_, run.end));
    }

    [[nodiscard]] bool isWordBound() const { return style_.boundary == DelimiterBoundary::Word; }

    // The first closing run from `from` on, or the end of its line as an empty run.
    [[nodiscard]] DelimiterRun closerOrLineEnd(std::size_t from) const {
        for (;;) {
            from = findUnitOrLineEnd(text_, from, style_.unit);
            if (from == text_.size() || text_[from] != style_.unit) return {from, from};
            const DelimiterRun run = delimiterRunAt(text_, from);
            if (closes(run)) return run;
            from = run.end;
        }
    }

    StringView text_;
    DelimiterStyle style_;
    DelimiterRun reached_;  // what the last search for a closing run came to
};

}  // namespace

void scanDelimiterPairs(StringView text, DelimiterStyle style, MatchSink& sink) {
    DelimiterPairs pairs(text, style);
    std::size_t position = 0;
    while ((position = findUnit(text, position, style.unit)) < text.size()) {
        const DelimiterRun opener = delimiterRunAt(text, position);
        const DelimiterRun closer = pairs.closerOf(opener);
        position = opener.end;
        if (closer.length() == 0) continue;
        const SpanMatch match{spanOf(opener.start, closer.end), {spanOf(opener.end, closer.start)}};
        if (!sink.add(match)) return;
        position = closer.end;
    }
}

void scanBoldItalic(StringView text, MatchSink& sink) {
    DelimiterPairs asterisks(text, {u'*', 3});
    DelimiterPairs underscores(text, {u'_', 3});
    std::size_t position = 0;
    while ((position = findEither(text, position, u'*', u'_')) < text.size()) {
        const bool isAsterisk = text[position] == u'*';
        const DelimiterRun opener = delimiterRunAt(text, position);
        const DelimiterRun closer = (isAsterisk ? asterisks : underscores).closerOf(opener);
        position = opener.end;
        if (closer.length() == 0) continue;
        SpanMatch match{spanOf(opener.start, closer.end), {}};
        match.groups[0] = match.whole;
        match.groups[isAsterisk ? 1 : 2] = spanOf(opener.end, closer.start);
        if (!sink.add(match)) return;
        position = closer.end;
    }
}

}  // namespace QZCore
