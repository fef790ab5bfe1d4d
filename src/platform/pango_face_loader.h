// Loads exactly the face that is asked for.
//
// A description of family, weight and slant may fit several faces, and Pango
// takes any font rather than none. So the descriptions made here name the
// place of the face in the list for its family, and the pattern that Pango
// makes of one is completed by the real family and the file, which fontconfig
// heeds before all else.
#pragma once

#include <pango/pango.h>

#include <memory>
#include <vector>

#include "platform/pango_font_list.h"

namespace QZCore {

struct GObjectRelease {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <class T>
using OwnedGObject = std::unique_ptr<T, GObjectRelease>;

/// Pango's FreeType font map and one context on it. One thread at a time.
class FaceLoader {
public:
    /// Loads at `size` in Pango's units. Keeps a reference to the list.
    FaceLoader(const FontList& list, FcConfig* config, int size);

    /// The face, ready to shape with; null when its file is gone.
    [[nodiscard]] PangoFont* load(const InstalledFace& face);

    /// The context, whose own font is the face that was loaded last.
    [[nodiscard]] PangoContext* context() const { return context_.get(); }

private:
    const FontList& list_;
    int size_;
    OwnedGObject<PangoFontMap> map_;
    OwnedGObject<PangoContext> context_;
    std::vector<OwnedGObject<PangoFont>> fonts_;  // one for each face of the list
};

}  // namespace QZCore
