#include "platform/pango_face_loader.h"

#include <pango/pangofc-fontmap.h>
#include <pango/pangoft2.h>

#include <charconv>
#include <string>
#include <string_view>

namespace QZCore {
namespace {

struct DescriptionRelease {
    void operator()(PangoFontDescription* description) const {
        pango_font_description_free(description);
    }
};
using Description = std::unique_ptr<PangoFontDescription, DescriptionRelease>;

Description descriptionOf(const InstalledFace& face, std::size_t place, int size) {
    Description description(pango_fc_font_description_from_pattern(face.pattern.get(), FALSE));
    pango_font_description_set_family(description.get(), std::to_string(place).c_str());
    pango_font_description_set_absolute_size(description.get(), size);
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

}  // namespace

FaceLoader::FaceLoader(const FontList& list, FcConfig* config, int size)
    : list_(list),
      size_(size),
      map_(pango_ft2_font_map_new()),
      context_(pango_font_map_create_context(map_.get())),
      fonts_(list.faces().size()) {
    PangoFcFontMap* map = PANGO_FC_FONT_MAP(map_.get());
    pango_fc_font_map_set_config(map, config);
    pango_fc_font_map_set_default_substitute(map, completePattern, const_cast<FontList*>(&list),
                                             nullptr);
}

PangoFont* FaceLoader::load(const InstalledFace& face) {
    const std::size_t place = list_.placeOf(face);
    const Description description = descriptionOf(face, place, size_);
    pango_context_set_font_description(context_.get(), description.get());
    OwnedGObject<PangoFont>& font = fonts_[place];
    if (font == nullptr) font.reset(pango_context_load_font(context_.get(), description.get()));
    return font.get();
}

}  // namespace QZCore
