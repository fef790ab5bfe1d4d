#include "platform/pango_font_widths.h"

#include <pango/pangofc-fontmap.h>
#include <pango/pangoft2.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <charconv>

namespace QZCore {
namespace {

// Widths grow in proportion to the size, so that one size serves for all. At
// this one, the advances of fonts with 1000, 1024, 2000, 2048 and 4096 units
// to the em are whole numbers of Pango's units.
constexpr int kMeasuringSize = 1000 * PANGO_SCALE;

// Longer lines are measured piece by piece: Pango counts bytes in an int and
// holds all glyphs of a piece at once.
constexpr std::size_t kLongestPiece = std::size_t{1} << 16;

struct GObjectRelease {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <class T>
using Owned = std::unique_ptr<T, GObjectRelease>;

// ---- Loading exactly the listed face ----------------------------------------
//
// A description of family, weight and slant may fit several faces, and Pango
// takes any font rather than none. So the description names the place of the
// face in the list for its family, and the pattern that Pango makes of it is
// completed by the real family and the file, which fontconfig heeds before all
// else.

struct DescriptionRelease {
    void operator()(PangoFontDescription* description) const {
        pango_font_description_free(description);
    }
};
using Description = std::unique_ptr<PangoFontDescription, DescriptionRelease>;

Description descriptionOf(const InstalledFace& face, std::size_t place) {
    Description description(pango_fc_font_description_from_pattern(face.pattern.get(), FALSE));
    pango_font_description_set_family(description.get(), std::to_string(place).c_str());
    pango_font_description_set_absolute_size(description.get(), kMeasuringSize);
    return description;
}

const InstalledFace* faceDescribedBy(const FcPattern* pattern, const FontList& list) {
    FcChar8* family = nullptr;
    if (FcPatternGetString(pattern, FC_FAMILY, 0, &family) != FcResultMatch) return nullptr;
    const std::string_view digits = reinterpret_cast<const char*>(family);
    std::size_t place = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), place);
    if (error != std::errc() || place >= list.faces().size()) return nullptr;
    return &list.faces()[place];
}

extern "C" void completePattern(FcPattern* pattern, gpointer list) {
    const InstalledFace* face = faceDescribedBy(pattern, *static_cast<const FontList*>(list));
    if (face == nullptr) return;
    FcPatternRemove(pattern, FC_FAMILY, 0);
    FcValue family;
    if (FcPatternGet(face->pattern.get(), FC_FAMILY, 0, &family) == FcResultMatch) {
        FcPatternAdd(pattern, FC_FAMILY, family, FcFalse);
    }
    FcPatternAddString(pattern, FC_FILE, reinterpret_cast<const FcChar8*>(face->file.path.c_str()));
}

// ---- Cutting a text into runs of one face -----------------------------------

/// Bytes of a line that are set in one face.
struct Run {
    const InstalledFace* face;
    std::size_t start;
    std::size_t end;
};

struct Line {
    std::string bytes;
    std::vector<Run> runs;

    void append(char32_t character, const InstalledFace& face) {
        if (runs.empty() || runs.back().face != &face) {
            runs.push_back({&face, bytes.size(), bytes.size()});
        }
        char encoded[6];
        const int length = g_unichar_to_utf8(character, encoded);
        bytes.append(encoded, static_cast<std::size_t>(length));
        runs.back().end = bytes.size();
    }
};

/// Whether a character that needs no glyph has a part in how its neighbours
/// are shaped, as joiners and variation selectors have.
bool takesPartInShaping(char32_t character) {
    return u_hasBinaryProperty(static_cast<UChar32>(character),
                               UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0;
}

bool isSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

/// `text` with each character in the face that shows it. Characters without a
/// glyph stay with those before them.
Line lineOf(StringView text, const InstalledFace& face, const FontSubstitutes& substitutes) {
    Line line;
    const InstalledFace* current = &face;
    for (std::size_t i = 0; i < text.size();) {
        const CodePoint point = codePointAt(text, i);
        i += point.length;
        const char32_t character = isSurrogate(point.value) ? 0xFFFD : point.value;
        if (!needsNoGlyph(character)) {
            current = substitutes.faceShowing(character, face);
        } else if (!takesPartInShaping(character)) {
            continue;
        }
        line.append(character, *current);
    }
    return line;
}

/// The length of the first piece of `text` to measure: all of it, or as much as
/// fits up to a space or, without one, to any whole character.
std::size_t pieceLength(StringView text) {
    if (text.size() <= kLongestPiece) return text.size();
    const std::size_t space = text.rfind(u' ', kLongestPiece - 1);
    if (space != StringView::npos) return space + 1;
    return isHighSurrogate(text[kLongestPiece - 1]) ? kLongestPiece - 1 : kLongestPiece;
}

}  // namespace

// ---- Shaping ----------------------------------------------------------------

/// Holds Pango's objects. One thread at a time.
class FontWidths::Shaper {
public:
    Shaper(const FontList& list, FcConfig* config)
        : list_(list),
          map_(pango_ft2_font_map_new()),
          context_(pango_font_map_create_context(map_.get())),
          attributes_(pango_attr_list_new()),
          fonts_(list.faces().size()) {
        PangoFcFontMap* map = PANGO_FC_FONT_MAP(map_.get());
        pango_fc_font_map_set_config(map, config);
        pango_fc_font_map_set_default_substitute(map, completePattern, const_cast<FontList*>(&list),
                                                 nullptr);
        pango_attr_list_insert(attributes_.get(), pango_attr_fallback_new(FALSE));
    }

    /// The width of `line` in Pango's units at the measuring size.
    std::int64_t widthOf(const Line& line) {
        std::int64_t width = 0;
        for (const Run& run : line.runs) width += widthOf(line, run);
        return width;
    }

private:
    std::int64_t widthOf(const Line& line, const Run& run) {
        PangoFont* font = fontOf(*run.face);
        if (font == nullptr) return 0;
        std::int64_t width = 0;
        GList* items =
            pango_itemize(context_.get(), line.bytes.data(), static_cast<int>(run.start),
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

    std::int64_t widthOf(const Line& line, const PangoItem& item) {
        pango_shape_with_flags(line.bytes.data() + item.offset, item.length, line.bytes.data(),
                               static_cast<int>(line.bytes.size()), &item.analysis, glyphs_.get(),
                               PANGO_SHAPE_NONE);
        std::int64_t width = 0;
        for (int i = 0; i < glyphs_->num_glyphs; ++i) width += glyphs_->glyphs[i].geometry.width;
        return width;
    }

    /// Also makes the face the context's own, so that itemizing does not look
    /// for another.
    PangoFont* fontOf(const InstalledFace& face) {
        const std::size_t place = list_.placeOf(face);
        const Description description = descriptionOf(face, place);
        pango_context_set_font_description(context_.get(), description.get());
        Owned<PangoFont>& font = fonts_[place];
        if (font == nullptr) font.reset(pango_context_load_font(context_.get(), description.get()));
        return font.get();
    }

    struct AttributesRelease {
        void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
    };
    struct GlyphsRelease {
        void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
    };

    const FontList& list_;
    Owned<PangoFontMap> map_;
    Owned<PangoContext> context_;
    std::unique_ptr<PangoAttrList, AttributesRelease> attributes_;
    std::unique_ptr<PangoGlyphString, GlyphsRelease> glyphs_{pango_glyph_string_new()};
    std::vector<Owned<PangoFont>> fonts_;  // one for each face, loaded when needed
};

FontWidths::FontWidths(const FontList& list, const FontSubstitutes& substitutes, FcConfig* config)
    : substitutes_(substitutes), shaper_(std::make_unique<Shaper>(list, config)) {}

FontWidths::~FontWidths() = default;

double FontWidths::widthOf(StringView text, const InstalledFace& face) const {
    std::int64_t width = 0;
    while (!text.empty()) {
        const std::size_t length = pieceLength(text);
        const Line line = lineOf(text.substr(0, length), face, substitutes_);
        const std::lock_guard lock(mutex_);
        width += shaper_->widthOf(line);
        text.remove_prefix(length);
    }
    return static_cast<double>(std::max<std::int64_t>(width, 0)) / kMeasuringSize;
}

}  // namespace QZCore
