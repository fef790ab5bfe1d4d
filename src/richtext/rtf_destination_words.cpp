#include "richtext/rtf_word_tables.h"

namespace QZCore {
namespace {

using enum RtfDestination;

constexpr RtfWordRow kWords[] = {
    // Characters.
    {"par", u'\n'},
    {"sect", u'\n'},
    {"row", kRtfRowEnd},
    {"nestrow", kRtfRowEnd},
    {"cell", u'\t'},
    {"nestcell", u'\t'},
    {"tab", u'\t'},
    {"line", u'\u2028'},
    {"page", u'\f'},
    {"emdash", u'\u2014'},
    {"endash", u'\u2013'},
    {"emspace", u'\u2003'},
    {"enspace", u'\u2002'},
    {"qmspace", u'\u2005'},
    {"bullet", u'\u2022'},
    {"lquote", u'\u2018'},
    {"rquote", u'\u2019'},
    {"ldblquote", u'\u201C'},
    {"rdblquote", u'\u201D'},
    {"ltrmark", u'\u200E'},
    {"rtlmark", u'\u200F'},
    {"zwj", u'\u200D'},
    {"zwnj", u'\u200C'},
    // Destinations that are read.
    {"fonttbl", FontTable},
    {"falt", AlternativeFontName},
    {"colortbl", ColorTable},
    {"listtable", ListTable},
    {"listoverridetable", ListOverrideTable},
    {"leveltext", ListLevelText},
    {"listtext", ListMarker},
    {"pntext", ListMarker},
    {"field", Field},
    {"fldinst", FieldInstruction},
    {"fldrslt", FieldResult},
    {"upr", Alternatives},
    {"ud", Around},
    {"shppict", Around},
    {"pict", Picture},
    {"NeXTGraphic", PictureFile},
    {"picprop", PictureProperties},
    {"sn", PropertyName},
    {"sv", PropertyValue},
    // Destinations that are no part of the text and not marked so.
    {"stylesheet", Skipped},
    {"info", Skipped},
    {"header", Skipped},
    {"headerl", Skipped},
    {"headerr", Skipped},
    {"headerf", Skipped},
    {"footer", Skipped},
    {"footerl", Skipped},
    {"footerr", Skipped},
    {"footerf", Skipped},
    {"footnote", Skipped},
    {"nonshppict", Skipped},
    {"shprslt", Skipped},
    {"filetbl", Skipped},
    {"revtbl", Skipped},
    {"levelnumbers", Skipped},
    {"listname", Skipped},
    {"xe", Skipped},
    {"tc", Skipped},
    {"tcn", Skipped},
    {"rxe", Skipped},
    {"txe", Skipped},
    {"fname", Skipped},
    {"panose", Skipped},
    {"private", Skipped},
};

}  // namespace

std::span<const RtfWordRow> rtfDestinationWords() { return kWords; }

}  // namespace QZCore
