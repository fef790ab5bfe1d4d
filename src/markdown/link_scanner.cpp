// Links and images.
#include <algorithm>

#include "foundation/unit_search.h"
#include "markdown/row_scanners.h"

namespace QZCore {

namespace {

// The ends of link targets, asked for from left to right: the search goes on
// where it stopped, so that many open targets cost no more than one.
class TargetEnds {
public:
    explicit TargetEnds(StringView text) : text_(text) {}

    // The closing parenthesis of the target that starts at `start`; `start`
    // itself when the target is empty or a blank or nothing ends it.
    std::size_t endOfTarget(std::size_t start) {
        if (stop_ < start) stop_ = findEither(text_, start, u' ', u')');
        return stop_ < text_.size() && text_[stop_] == u')' ? stop_ : start;
    }

private:
    StringView text_;
    std::size_t stop_ = 0;
};

}  // namespace

// A link text holds anything but a closing bracket, so all brackets that open
// before a closing one stand or fall with it, and the first of them wins.
void scanLinks(StringView text, MatchSink& sink) {
    TargetEnds targets(text);
    std::size_t position = 0;
    while ((position = findUnit(text, position, u'[')) < text.size()) {
        const std::size_t opening = position;
        const std::size_t closing = findUnit(text, opening + 1, u']');
        if (closing == text.size()) return;
        position = closing + 1;
        if (closing == opening + 1 || text.substr(position, 1) != u"(") continue;
        const std::size_t target = closing + 2;
        const std::size_t end = targets.endOfTarget(target);
        if (end == target) continue;
        const bool isImage = opening > 0 && text[opening - 1] == u'!';
        const SpanMatch match{spanOf(opening - (isImage ? 1 : 0), end + 1),
                              {spanOf(opening + 1, closing), spanOf(target, end)}};
        if (!sink.add(match)) return;
        position = end + 1;
    }
}

}  // namespace QZCore
