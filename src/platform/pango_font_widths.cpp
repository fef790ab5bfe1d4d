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
        : loader_(list, config, kMeasuringSize),
          attributes_(pango_attr_list_new()),
          glyphs_(pango_glyph_string_new()) {
        pango_attr_list_insert(attributes_.get(), pango_attr_fallback_new(FALSE));
    }

    /// The width of `line` in Pango's units at the measuring size.
    std::int64_t widthOf(const FontLine& line) {
        std::int64_t width = 0;
        for (const FontRun& run : line.runs) width += widthOf(line, run);
        return width;
    }

private:
    std::int64_t widthOf(const FontLine& line, const FontRun& run) {
        PangoFont* font = loader_.load(*run.face);
        if (font == nullptr) return 0;
        std::int64_t width = 0;
        GList* items =
            pango_itemize(loader_.context(), line.bytes.data(), static_cast<int>(run.start),
                          static_cast<int>(run.end - run.start), attributes_.get(), nullptr);
        for (GList* link = items; link != nullptr; link = link->next) {
            PangoItem* item = static_cast<PangoItem*>(link->data);
            // Pango takes a font of its own choice for emoji.
            if (item->analysis.font != font) g_set_object(&item->analysis.font, font);
            width += widthOf(line, *item);
            pango_item_free(item);
        }
        g_list_free(items);
        return width;
    }

    std::int64_t widthOf(const FontLine& line, const PangoItem& item) {
        pango_shape_with_flags(line.bytes.data() + item.offset, item.length, line.bytes.data(),
                               static_cast<int>(line.bytes.size()), &item.analysis, glyphs_.get(),
                               PANGO_SHAPE_NONE);
        std::int64_t width = 0;
        for (int i = 0; i < glyphs_->num_glyphs; ++i) width += glyphs_->glyphs[i].geometry.width;
        return width;
    }

    struct AttributesRelease {
        void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
    };
    struct GlyphsRelease {
        void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
    };

    FaceLoader loader_;
    std::unique_ptr<PangoAttrList, AttributesRelease> attributes_;
    std::unique_ptr<PangoGlyphString, GlyphsRelease> glyphs_;
};

FontWidths::FontWidths(const FontList& list, const FontSubstitutes& substitutes, FcConfig* config)
    : substitutes_(substitutes), shaper_(std::make_unique<Shaper>(list, config)) {}

FontWidths::~FontWidths() = default;

double FontWidths::widthOf(StringView text, const InstalledFace& face) const {
    std::int64_t width = 0;
    while (!text.empty()) {
        const std::size_t length = pieceLength(text);
        const FontLine line = fontLineOf(text.substr(0, length), face, substitutes_);
        const std::lock_guard lock(mutex_);
        width += shaper_->widthOf(line);
        text.remove_prefix(length);
    }
    return static_cast<double>(std::max<std::int64_t>(width, 0)) / kMeasuringSize;
}

}  // namespace QZCore
