// The widths of texts, as Pango shapes them.
#pragma once

#include <memory>
#include <mutex>

#include "platform/pango_font_list.h"
#include "platform/pango_font_substitutes.h"

namespace QZCore {

/// Measures texts. Pango is not made for several threads at once: they wait
/// for each other here.
class FontWidths {
public:
    /// Keeps references to all three.
    FontWidths(const FontList& list, const FontSubstitutes& substitutes, FcConfig* config);
    ~FontWidths();
    FontWidths(const FontWidths&) = delete;
    FontWidths& operator=(const FontWidths&) = delete;

    /// The advance width of `text` in `face` at a size of 1 point. Characters
    /// that the face lacks are measured in their substitutes.
    [[nodiscard]] double widthOf(StringView text, const InstalledFace& face) const;

private:
    class Shaper;

    const FontSubstitutes& substitutes_;
    mutable std::mutex mutex_;
    std::unique_ptr<Shaper> shaper_;
};

}  // namespace QZCore
