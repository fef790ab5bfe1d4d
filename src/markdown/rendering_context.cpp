#include "markdown/rendering_context.h"

#include <utility>

#include "QZCore/markdown/rendering.h"

namespace QZCore {

const Dictionary* RenderingContext::styleNamed(StringView name) const {
    const Value* style = styles.find(name);
    return style == nullptr ? nullptr : style->dictionary();
}

const Font& RenderingContext::fontOf(std::uint32_t id) const {
    const Font* font = text.palette().at(id).font();
    return font == nullptr ? baseFont : *font;
}

TextAttributes RenderingContext::ignoreMark() const {
    if (!preferences.boolForKey(u"Markdown Use Ignore Block", true)) return {};
    return {{kIgnoreBlockAttributeName, u""}};
}

ResolvedStyles::ResolvedStyles(RenderingContext& context, Dictionary defaultStyle,
                               StringView userStyleName, TextAttributes extra)
    : context_(context),
      defaultStyle_(std::move(defaultStyle)),
      userStyle_(context.styleNamed(userStyleName)),
      extra_(std::move(extra)) {}

AddedAttributes& ResolvedStyles::forMatchAt(std::uint32_t id) {
    const auto [at, isNew] = resolved_.try_emplace(id);
    if (isNew) {
        const TextAttributes resolved =
            fontAttributesWithDefaultStyle(&defaultStyle_, userStyle_, context_.fontOf(id));
        at->second = AddedAttributes(resolved.mergedWith(extra_));
    }
    return at->second;
}

}  // namespace QZCore
