#include "markdown/render_text.h"

#include <algorithm>
#include <utility>

#include "QZCore/markdown/rendering.h"
#include "markdown/escape_scanner.h"
#include "markdown/expression_matches.h"

namespace QZCore {
namespace {

bool isIgnored(std::uint32_t id) { return (id & kIgnoreMark) != 0; }

}  // namespace

/// One forward walk over text, search copy and runs, which closes the gaps that
/// deletions leave as it goes.
class RenderText::Sweep {
public:
    /// The edits divide runs so often at most: a deletion never does, other
    /// attributes do at both ends.
    explicit Sweep(RenderText& text, std::size_t divisions = 0)
        : text_(text),
          live_(text.flat_.text.data()),
          copy_(text.copyDiffers_ ? text.searchCopy_.data() : nullptr),
          run_(text.flat_.runs.data()),
          runAhead_(run_) {
        text_.sweptRuns_.resize(text.flat_.runs.size() + divisions);
        first_ = end_ = text_.sweptRuns_.data();
    }

    /// The number of the attributes at `position`, which lies ahead of the walk
    /// and of every position asked about before.
    std::uint32_t idAhead(std::uint32_t position) {
        while (runAhead_->end <= position) ++runAhead_;
        return runAhead_->id;
    }

    /// Moves on to `end` and keeps what lies before it.
    void keepUpTo(std::uint32_t end) {
        if (read_ >= end) return;
        moveUnits(end);
        while (run_->end <= read_) ++run_;
        const std::uint32_t gap = read_ - write_;
        read_ = end;
        write_ = end - gap;
        if (run_->end >= end) return addRun(write_, run_->id);
        addRun(run_->end - gap, run_->id);
        // Neighbours that were different stay so.
        while ((++run_)->end < end) *end_++ = {run_->end - gap, run_->id};
        *end_++ = {write_, run_->id};
    }

    /// The same with attributes added.
    void keepUpTo(std::uint32_t end, AddedAttributes& added) {
        if (read_ >= end) return;
        moveUnits(end);
        while (run_->end <= read_) ++run_;
        const std::uint32_t gap = read_ - write_;
        read_ = end;
        write_ = end - gap;
        for (; run_->end < end; ++run_) {
            addRun(run_->end - gap, added.over(run_->id, text_.flat_.palette));
        }
        addRun(write_, added.over(run_->id, text_.flat_.palette));
    }

    /// Moves on to `end` and deletes what lies before it.
    void deleteUpTo(std::uint32_t end) { read_ = end; }

    /// Adds text that was not there, no longer than what was deleted before.
    void insert(StringView text, std::uint32_t id) {
        if (text.empty()) return;
        text.copy(live_ + write_, text.size());
        if (copy_ != nullptr) text.copy(copy_ + write_, text.size());
        write_ += static_cast<std::uint32_t>(text.size());
        addRun(write_, id);
    }

    /// Keeps the rest of the text and puts the result in place.
    void finish() {
        keepUpTo(static_cast<std::uint32_t>(text_.flat_.text.size()));
        text_.flat_.text.resize(write_);
        if (copy_ != nullptr) text_.searchCopy_.resize(write_);
        text_.sweptRuns_.resize(static_cast<std::size_t>(end_ - first_));
        std::swap(text_.flat_.runs, text_.sweptRuns_);
    }

private:
    void moveUnits(std::uint32_t end) {
        if (read_ == write_) return;
        const std::uint32_t length = end - read_;
        std::char_traits<char16_t>::move(live_ + write_, live_ + read_, length);
        if (copy_ != nullptr) {
            std::char_traits<char16_t>::move(copy_ + write_, copy_ + read_, length);
        }
    }

    /// Adds a run, or lets the last one grow when it has the same attributes.
    void addRun(std::uint32_t end, std::uint32_t id) {
        if (end_ != first_ && end_[-1].id == id) {
            end_[-1].end = end;
        } else {
            *end_++ = {end, id};
        }
    }

    RenderText& text_;
    char16_t* live_;
    char16_t* copy_;
    const FlatRun* run_;
    const FlatRun* runAhead_;
    FlatRun* first_;  // of the runs made
    FlatRun* end_;
    std::uint32_t read_ = 0;
    std::uint32_t write_ = 0;
};

void RenderText::load(FlatText part, AddedAttributes& everywhere) {
    flat_ = std::move(part);
    const std::size_t expectedRuns = flat_.text.size() / 16;
    flat_.runs.reserve(expectedRuns);
    sweptRuns_.reserve(expectedRuns);
    // The attribute that keeps passes away is replaced by the mark.
    const auto marked = [&](std::uint32_t old) {
        const TextAttributes before = flat_.palette.at(old);
        if (before.find(kIgnoreBlockAttributeName) == nullptr) return old;
        return kIgnoreMark | flat_.palette.idOf(before.withoutAttribute(kIgnoreBlockAttributeName));
    };
    renumber([&](std::uint32_t id) {
        return everywhere.over(withoutIgnoreAttribute_(id, marked), flat_.palette);
    });
    const StringView covered = coverEscapes(flat_.text, searchCopy_);
    copyDiffers_ = covered.data() != flat_.text.data();
}

template <class NewId>
void RenderText::renumber(NewId newId) {
    sweptRuns_.clear();
    for (const FlatRun& run : flat_.runs) appendRun(sweptRuns_, run.end, newId(run.id));
    std::swap(flat_.runs, sweptRuns_);
}

const std::vector<SpanMatch>& RenderText::find(const MarkdownExpression& expression) {
    matches_.clear();
    matches_.reserve(64);
    findMatches(expression, searchCopy(), matches_);
    // A pattern of the user's own may match without taking a character.
    std::erase_if(matches_,
                  [](const SpanMatch& match) { return match.whole.start == match.whole.end; });
    return matches_;
}

std::vector<bool> RenderText::ignoredMatches() const {
    std::vector<bool> ignored;
    std::size_t run = 0;
    for (const SpanMatch& match : matches_) {
        while (flat_.runs[run].end <= match.whole.start) ++run;
        ignored.push_back(isIgnored(flat_.runs[run].id));
    }
    return ignored;
}

void RenderText::apply(MatchEditor& editor) {
    if (matches_.empty()) return;
    Sweep sweep(*this, 2 * matches_.size());
    for (const SpanMatch& match : matches_) {
        const std::uint32_t id = sweep.idAhead(match.whole.start);
        if (isIgnored(id)) continue;
        const MatchEdit change = editor.edit(match, id);
        if (change.added == nullptr && change.replacement.empty()) continue;
        sweep.keepUpTo(match.whole.start);
        if (change.added != nullptr) {
            sweep.deleteUpTo(change.content.start);
            sweep.keepUpTo(change.content.end, *change.added);
        }
        sweep.deleteUpTo(match.whole.end);
        if (change.added == nullptr) sweep.insert(change.replacement, change.replacementId);
    }
    sweep.finish();
}

void RenderText::resolveEscapes() {
    copyDiffers_ = false;
    std::size_t escape = findEscape(flat_.text, 0);
    if (escape == flat_.text.size()) return;
    Sweep sweep(*this);
    for (; escape < flat_.text.size(); escape = findEscape(flat_.text, escape + kEscapeLength)) {
        const auto start = static_cast<std::uint32_t>(escape);
        sweep.keepUpTo(start);
        sweep.deleteUpTo(start + 1);
    }
    sweep.finish();
}

FlatText RenderText::take() {
    resolveEscapes();
    renumber([](std::uint32_t id) { return id & ~kIgnoreMark; });
    return std::move(flat_);
}

}  // namespace QZCore
