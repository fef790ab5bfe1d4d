// What every pass of the rendering works with.
#pragma once

#include <unordered_map>

#include "QZCore/markdown/style_sheet.h"
#include "QZCore/markdown/syntax.h"
#include "markdown/render_text.h"

namespace QZCore {

/// The text, and what says how it is to look.
struct RenderingContext {
    RenderText& text;
    const StyleSheet& styles;
    const Preferences& preferences;
    /// The font at the start of the note; the font where the text has none.
    Font baseFont;

    /// The style sheet's style of that name, or null.
    [[nodiscard]] const Dictionary* styleNamed(StringView name) const;

    /// The font of the attributes with the number `id`.
    [[nodiscard]] const Font& fontOf(std::uint32_t id) const;

    /// Whether rendered code and link texts are kept from later passes, as the
    /// preferences have it.
    [[nodiscard]] LaterPasses afterRendering() const;
};

/// What a construct's default style and user style prescribe, resolved once for
/// each set of attributes that a match starts with.
class ResolvedStyles {
public:
    ResolvedStyles(const RenderingContext& context, Dictionary defaultStyle,
                   StringView userStyleName, LaterPasses later = LaterPasses::GoOn);

    ResolvedStyles(ResolvedStyles&&) = default;
    ResolvedStyles(const ResolvedStyles&) = delete;
    ResolvedStyles& operator=(const ResolvedStyles&) = delete;

    /// The attributes to add to a match that starts with the set `id`.
    [[nodiscard]] AddedAttributes& forMatchAt(std::uint32_t id) {
        if (last_ == nullptr || id != lastId_) {
            last_ = &resolved(id);
            lastId_ = id;
        }
        return *last_;
    }

private:
    [[nodiscard]] AddedAttributes& resolved(std::uint32_t id);

    const RenderingContext& context_;
    Dictionary defaultStyle_;
    const Dictionary* userStyle_;
    LaterPasses later_;
    std::unordered_map<std::uint32_t, AddedAttributes> resolved_;
    AddedAttributes* last_ = nullptr;
    std::uint32_t lastId_ = 0;
};

}  // namespace QZCore
