#include "markdown/rendering_context.h"

#include <utility>

namespace QZCore {

const Dictionary* RenderingContext::styleNamed(StringView name) const {
    const Value* style = styles.find(name);
    return style == nullptr ? nullptr : style->dictionary();
}

const Font& RenderingContext::fontOf(std::uint32_t id) const {
    const Font* font = text.palette().at(id).font();
    return font == nullptr ? baseFont : *font;
}

LaterPasses RenderingContext::afterRendering() const {
    const bool keepsAway = preferences.boolForKey(u"Markdown Use Ignore Block", true);
    return keepsAway ? LaterPasses::KeepAway : LaterPasses::GoOn;
}

ResolvedStyles::ResolvedStyles(const RenderingContext& context, Dictionary defaultStyle,
                               StringView userStyleName, LaterPasses later)
    : context_(context),
      defaultStyle_(std::move(defaultStyle)),
      userStyle_(context.styleNamed(userStyleName)),
      later_(later) {}

AddedAttributes& ResolvedStyles::resolved(std::uint32_t id) {
    const auto [at, isNew] = resolved_.try_emplace(id);
    if (isNew) {
        at->second = AddedAttributes(
            fontAttributesWithDefaultStyle(&defaultStyle_, userStyle_, context_.fontOf(id)),
            later_);
    }
    return at->second;
}

}  // namespace QZCore
