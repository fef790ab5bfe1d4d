#include <optional>
#include <unordered_map>
#include <utility>

#include "QZCore/color.h"
#include "markdown/image_attachment.h"
#include "markdown/link_target.h"
#include "markdown/passes.h"
#include "richtext/attribute_names.h"
#include "richtext/link_look.h"

namespace QZCore {
namespace {

bool isWithin(SpanMatch::Span group, SpanMatch::Span whole) {
    return group.start >= whole.start && group.start < group.end && group.end <= whole.end;
}

/// A user's own link pattern may capture less than a text and a target, or look
/// beyond its match. Such a match stays as it is written.
bool capturesTextAndTarget(const SpanMatch& match) {
    return isWithin(match.groups[0], match.whole) && isWithin(match.groups[1], match.whole);
}

bool isImage(StringView text, const SpanMatch& match) { return text[match.whole.start] == u'!'; }

StringView partOf(StringView text, SpanMatch::Span span) {
    return text.substr(span.start, span.end - span.start);
}

class LinkEditor final : public MatchEditor {
public:
    explicit LinkEditor(RenderingContext& context)
        : context_(context), look_(linkLook(context.preferences), context.afterRendering()) {}

    void beginPart() override { fetchImages(); }

    MatchEdit edit(const SpanMatch& match, std::uint32_t id) override {
        if (!capturesTextAndTarget(match)) return MatchEdit::leave();
        AttributePalette& palette = context_.text.palette();
        const auto image = images_.find(match.whole.start);
        if (image != images_.end()) {
            const TextAttributes around = palette.at(id);
            return MatchEdit::replace(
                kAttachmentString, palette.idOf(around.withAttribute(attributeNames().attachment,
                                                                     Value::boxed(image->second))));
        }
        const Value link = linkForTarget(partOf(context_.text.live(), match.groups[1]));
        added_ = AddedAttributes(look_, {attributeNames().link, link});
        return MatchEdit::keep(match.groups[0], added_);
    }

private:
    /// Images are fetched in the order in which matches are visited: the last
    /// one first.
    void fetchImages() {
        images_.clear();
        const StringView live = context_.text.live();
        const std::vector<SpanMatch>& matches = context_.text.matches();
        const std::vector<bool> kept = context_.text.ignoredMatches();
        for (std::size_t i = matches.size(); i-- > 0;) {
            const SpanMatch& match = matches[i];
            if (kept[i] || !capturesTextAndTarget(match) || !isImage(live, match)) continue;
            if (!fetch_) fetch_.emplace(context_.preferences);
            images_.emplace(match.whole.start,
                            fetch_->attachmentFor(partOf(live, match.groups[0]),
                                                  partOf(live, match.groups[1])));
        }
    }

    RenderingContext& context_;
    AddedAttributes look_;
    AddedAttributes added_;
    std::optional<ImageFetch> fetch_;
    std::unordered_map<std::uint32_t, TextAttachment> images_;  // by the start of their match
};

}  // namespace

Pass linkPass(RenderingContext& context) { return std::make_unique<LinkEditor>(context); }

}  // namespace QZCore
