#include "platform/pango_font_widths.h"

#include <algorithm>

#include "platform/pango_face_loader.h"
#include "platform/pango_font_runs.h"

namespace QZCore {
namespace {

// Widths grow in proportion to the size, so that one size serves for all. At
// this one, the advances of fonts with 1000, 1024, 2000, 2048 and 4096 units
// to the em are whole numbers of Pango's units.
constexpr int kMeasuringSize = 1000 * PANGO_SCALE;

// Longer lines are measured piece by piece: Pango counts bytes in an int and
// holds all glyphs of a piece at once.
constexpr std::size_t kLongestPiece = std::size_t{1} << 16;

struct AttributesRelease {
    void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
};
using OwnedAttributes = std::unique_ptr<PangoAttrList, AttributesRelease>;

struct GlyphsRelease {
    void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
};
using OwnedGlyphs = std::unique_ptr<PangoGlyphString, GlyphsRelease>;

/// The length of the first piece of `text` to measure: all of it, or as much as
/// fits up to a space or, without one, to any whole character.
std::size_t pieceLength(StringView text) {
    if (text.size() <= kLongestPiece) return text.size();
    const std::size_t space = text.rfind(u' ', kLongestPiece - 1);
    if (space != StringView::npos) return space + 1;
    return isHighSurrogate(text[kLongestPiece - 1]) ? kLongestPiece - 1 : kLongestPiece;
}

}  // namespace

/// Holds Pango's objects. One thread at a time.
class FontWidths::Shaper {
public:
    Shaper(const FontList& list, FcConfig* config)
        : loader_(list, config, kMeasuringSize), attributes_(pango_attr_list_new()) {
        pango_attr_list_insert(attributes_.get(), pango_attr_fallback_new(FALSE));
    }

    /// The width of `run` in Pango's units at the measuring size.
    std::int64_t widthOf(const FontRun& run) {
        PangoFont* font = loader_.load(*run.face);
        if (font == nullptr) return 0;
        const std::string bytes = toUTF8(run.text);
        GList* items = pango_itemize(loader_.context(), bytes.data(), 0,
                                     static_cast<int>(bytes.size()), attributes_.get(), nullptr);
        std::int64_t width = 0;
        for (GList* link = items; link != nullptr; link = link->next) {
            PangoItem* item = static_cast<PangoItem*>(link->data);
            // Pango takes a font of its own choice for emoji.
            if (item->analysis.font != font) g_set_object(&item->analysis.font, font);
            width += widthOf(*item, bytes);
            pango_item_free(item);
        }
        g_list_free(items);
        return width;
    }

private:
    std::int64_t widthOf(const PangoItem& item, const std::string& bytes) {
        // A new string for each item: Pango reallocates it for every text, and
        // one that has grown with a long text makes that slow.
        const OwnedGlyphs glyphs(pango_glyph_string_new());
        pango_shape_with_flags(bytes.data() + item.offset, item.length, bytes.data(),
                               static_cast<int>(bytes.size()), &item.analysis, glyphs.get(),
                               PANGO_SHAPE_NONE);
        std::int64_t width = 0;
        for (int i = 0; i < glyphs->num_glyphs; ++i) width += glyphs->glyphs[i].geometry.width;
        return width;
    }

    FaceLoader loader_;
    OwnedAttributes attributes_;
};

FontWidths::FontWidths(const FontList& list, const FontSubstitutes& substitutes, FcConfig* config)
    : substitutes_(substitutes), shaper_(std::make_unique<Shaper>(list, config)) {}

FontWidths::~FontWidths() = default;

double FontWidths::widthOf(StringView text, const InstalledFace& face) const {
    std::int64_t width = 0;
    while (!text.empty()) {
        const std::size_t length = pieceLength(text);
        const auto runs = fontRunsOf(text.substr(0, length), face, substitutes_);
        const std::lock_guard lock(mutex_);
        for (const FontRun& run : runs) width += shaper_->widthOf(run);
        text.remove_prefix(length);
    }
    return static_cast<double>(std::max<std::int64_t>(width, 0)) / kMeasuringSize;
}

}  // namespace QZCore
