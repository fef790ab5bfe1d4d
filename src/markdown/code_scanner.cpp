// Inline code and fenced code blocks.
#include "markdown/code_fences.h"
#include "markdown/delimiter_run.h"
#include "markdown/row_scanners.h"

namespace QZCore {

// The content holds no backtick, so an opening run can only be closed by the
// very next run: it must be as long, with no line feed between them.
void scanInlineCode(StringView text, MatchSink& sink) {
    constexpr std::size_t kLongestRun = 3;
    std::size_t position = 0;
    while ((position = findUnit(text, position, u'`')) < text.size()) {
        const DelimiterRun opener = delimiterRunAt(text, position);
        position = findEither(text, opener.end, u'`', u'\n');
        if (position == text.size()) return;
        if (text[position] != u'`' || opener.length() > kLongestRun) continue;
        const DelimiterRun closer = delimiterRunAt(text, position);
        if (closer.length() != opener.length()) continue;
        const SpanMatch match{spanOf(opener.start, closer.end),
                              {spanOf(opener.start, opener.end), spanOf(opener.end, closer.start)}};
        if (!sink.add(match)) return;
        position = closer.end;
    }
}

namespace {

constexpr std::size_t kFenceLength = 3;

// The first three backticks from `from` on, or the length of the text.
std::size_t findFence(StringView text, std::size_t from) {
    for (;; ++from) {
        from = findUnit(text, from, u'`');
        if (from == text.size() || text.substr(from, kFenceLength) == u"```") return from;
    }
}

}  // namespace

std::size_t findOpeningFence(StringView text, std::size_t from) {
    for (;; ++from) {
        from = findFence(text, from);
        if (from == text.size() || text.substr(from + kFenceLength, 1) == u"\n") return from;
    }
}

void scanCodeBlocks(StringView text, MatchSink& sink) {
    std::size_t position = 0;
    while ((position = findOpeningFence(text, position)) < text.size()) {
        const std::size_t content = position + kFenceLength + 1;
        if (content == text.size()) return;
        const std::size_t fence = findFence(text, content + 1);
        // Where this fence is not closed, no later one is.
        if (fence == text.size()) return;
        std::size_t end = fence + kFenceLength;
        if (end < text.size() && text[end] == u'\n') ++end;
        if (!sink.add({spanOf(position, end), {spanOf(content, fence), spanOf(fence, end)}}))
            return;
        position = end;
    }
}

}  // namespace QZCore
