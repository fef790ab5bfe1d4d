// The text while it is rendered.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "QZCore/markdown/syntax.h"
#include "markdown/flat_writer.h"
#include "markdown/scanner.h"
#include "richtext/flat_text.h"
#include "richtext/number_map.h"

namespace QZCore {

/// Whether later passes leave what a pass has rendered alone.
enum class LaterPasses { GoOn, KeepAway };

/// Runs that later passes are kept away from have this bit in the number of
/// their attributes.
inline constexpr std::uint32_t kIgnoreMark = std::uint32_t{1} << 31;

/// Attributes that a pass adds, with what that gives for each set that they
/// were added to before.
class AddedAttributes {
public:
    AddedAttributes() = default;
    explicit AddedAttributes(TextAttributes added, LaterPasses later = LaterPasses::GoOn)
        : added_(std::move(added)), mark_(later == LaterPasses::KeepAway ? kIgnoreMark : 0) {}
    /// One attribute on top of those that `first` adds, which must outlive this.
    AddedAttributes(AddedAttributes& first, TextAttribute last)
        : mark_(first.mark_), first_(&first), last_(std::move(last)) {}

    /// The number of the set with the number `id` after the addition.
    std::uint32_t over(std::uint32_t id, AttributePalette& palette) {
        return mark_ | (id & kIgnoreMark) | numbers_(id & ~kIgnoreMark, [&](std::uint32_t old) {
                   return palette.idOf(addedTo(old, palette));
               });
    }

private:
    TextAttributes addedTo(std::uint32_t id, AttributePalette& palette) {
        if (first_ == nullptr) return palette.at(id).mergedWith(added_);
        const std::uint32_t first = first_->over(id, palette) & ~kIgnoreMark;
        return palette.at(first).withAttribute(last_->name, last_->value);
    }

    TextAttributes added_;
    std::uint32_t mark_ = 0;
    AddedAttributes* first_ = nullptr;
    std::optional<TextAttribute> last_;
    NumberMap numbers_;
};

/// What a pass makes of one match: it keeps the content with attributes added
/// and deletes the rest, or puts a replacement, no longer than the match, in
/// its place.
struct MatchEdit {
    SpanMatch::Span content;
    AddedAttributes* added = nullptr;
    StringView replacement;
    std::uint32_t replacementId = 0;

    /// Leaves the match as it is written.
    static MatchEdit leave() { return {}; }
    /// Keeps `content` with attributes added.
    static MatchEdit keep(SpanMatch::Span content, AddedAttributes& added) {
        return {content, &added, {}, 0};
    }
    /// Puts `text` with the attributes `id` in the match's place.
    static MatchEdit replace(StringView text, std::uint32_t id) { return {{}, nullptr, text, id}; }
};

/// Decides for each match of a construct what becomes of it. Made once for a
/// note, used for all of its parts.
class MatchEditor {
public:
    virtual ~MatchEditor() = default;

    /// Called when the matches of a part are found and none is edited yet.
    virtual void beginPart() {}

    /// What becomes of `match`, which starts with the attributes `id`. What the
    /// edit refers to must last until the next call.
    [[nodiscard]] virtual MatchEdit edit(const SpanMatch& match, std::uint32_t id) = 0;
};

/// The live text with its runs, and the search copy beside it, in which every
/// escape reads "@@". Positions in both are always the same. Passes search the
/// copy and edit both.
///
/// One object renders the parts of a note one after the other, so that its
/// buffers are made once. The palette goes from part to part.
class RenderText {
public:
    /// Takes a part over, adds attributes to all of it and makes its search
    /// copy.
    void load(FlatText part, AddedAttributes& everywhere);

    [[nodiscard]] StringView live() const { return flat_.text; }
    [[nodiscard]] StringView searchCopy() const {
        return copyDiffers_ ? StringView(searchCopy_) : StringView(flat_.text);
    }
    [[nodiscard]] AttributePalette& palette() { return flat_.palette; }

    /// Finds all matches of a pass in the search copy.
    [[nodiscard]] const std::vector<SpanMatch>& find(const MarkdownExpression& expression);
    /// The matches found last.
    [[nodiscard]] const std::vector<SpanMatch>& matches() const { return matches_; }

    /// For each match found last, whether it is marked to be ignored.
    [[nodiscard]] std::vector<bool> ignoredMatches() const;

    /// Applies a pass to the matches found last. The editor is asked once for
    /// each match whose first character is not marked to be ignored.
    ///
    /// The passes are defined as edits from the last match to the first. As the
    /// matches of a pass do not overlap and none reads what another changes,
    /// one forward sweep gives the same and moves every unit once.
    void apply(MatchEditor& editor);

    /// Replaces each match found last whose first character is not marked to be
    /// ignored by what `write(match, flat, out)` adds to a writer. Only for the
    /// last pass: the search copy is gone then.
    template <class Write>
    void rewrite(Write write);

    /// Gives the rendered part up, without the backslashes of its escapes and
    /// without the mark that keeps passes away.
    [[nodiscard]] FlatText take();

private:
    class Sweep;

    void resolveEscapes();
    template <class NewId>
    void renumber(NewId newId);

    FlatText flat_;
    String searchCopy_;
    bool copyDiffers_ = false;
    std::vector<SpanMatch> matches_;
    std::vector<FlatRun> sweptRuns_;
    NumberMap withoutIgnoreAttribute_;
};

template <class Write>
void RenderText::rewrite(Write write) {
    FlatWriter out;
    // Markers are longer than what they replace, mostly by their tabs.
    out.reserve(flat_.text.size() + flat_.text.size() / 8, flat_.runs.size() * 2);
    RunWalk ahead(flat_.runs);
    RunWalk runs(flat_.runs);
    std::uint32_t done = 0;
    const auto keepUpTo = [&](std::uint32_t end) {
        out.append({live().substr(done, end - done), done}, runs);
        done = end;
    };
    for (const SpanMatch& match : matches_) {
        if ((ahead.idAt(match.whole.start) & kIgnoreMark) != 0) continue;
        keepUpTo(match.whole.start);
        write(match, flat_, out);
        done = match.whole.end;
    }
    if (done == 0) return;
    keepUpTo(static_cast<std::uint32_t>(flat_.text.size()));
    out.moveTo(flat_);
    copyDiffers_ = false;
}

}  // namespace QZCore
