#include <unordered_map>
#include <utility>

#include "QZCore/color.h"
#include "markdown/image_attachment.h"
#include "markdown/link_target.h"
#include "markdown/passes.h"
#include "richtext/attribute_names.h"

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

/// What link texts take beside the link itself.
TextAttributes linkLook(const RenderingContext& context) {
    TextAttributes look;
    const auto color = colorForKey(context.preferences, u"Link Color");
    if (color && !color->isEqualByString(Color::clearColor())) {
        look = look.withAttribute(attributeNames().foregroundColor, Value::boxed(*color));
    }
    if (context.preferences.boolForKey(u"Link Underline", true)) {
        look = look.withAttribute(attributeNames().underlineStyle, 1);
    }
    return look;
}

/// The images of the matches, by the index of their match. They are fetched in
/// the order in which matches are visited: the last one first.
class Images {
public:
    Images(RenderingContext& context, const std::vector<SpanMatch>& matches) {
        const StringView live = context.text.live();
        const std::vector<bool> kept = context.text.ignoredMatches();
        ImageFetch fetch(context.preferences);
        for (std::size_t i = matches.size(); i-- > 0;) {
            const SpanMatch& match = matches[i];
            if (kept[i] || !capturesTextAndTarget(match) || !isImage(live, match)) continue;
            attachments_.emplace(i, fetch.attachmentFor(partOf(live, match.groups[0]),
                                                        partOf(live, match.groups[1])));
        }
    }

    /// The image of a match, or null.
    [[nodiscard]] const TextAttachment* find(std::size_t match) const {
        const auto found = attachments_.find(match);
        return found == attachments_.end() ? nullptr : &found->second;
    }

private:
    std::unordered_map<std::size_t, TextAttachment> attachments_;
};

}  // namespace

void renderLinks(RenderingContext& context, const MarkdownExpression& expression) {
    const std::vector<SpanMatch>& matches = context.text.find(expression);
    if (matches.empty()) return;
    const Images images(context, matches);
    AddedAttributes look(linkLook(context), context.afterRendering());
    const StringView live = context.text.live();
    AddedAttributes added;
    context.text.apply([&](const SpanMatch& match, std::uint32_t id) {
        if (!capturesTextAndTarget(match)) return MatchEdit::leave();
        AttributePalette& palette = context.text.palette();
        const auto index = static_cast<std::size_t>(&match - matches.data());
        if (const TextAttachment* image = images.find(index)) {
            const TextAttributes around = palette.at(id);
            return MatchEdit::replace(kAttachmentString,
                                      palette.idOf(around.withAttribute(NSAttachmentAttributeName,
                                                                        Value::boxed(*image))));
        }
        const Value link = linkForTarget(partOf(live, match.groups[1]));
        added = AddedAttributes(look, {attributeNames().link, link});
        return MatchEdit::keep(match.groups[0], added);
    });
}

}  // namespace QZCore
