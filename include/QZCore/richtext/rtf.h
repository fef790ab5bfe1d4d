// Rich text from RTF. `RichText::RTF` and `RichText::RTFD` write it.
//
// RTF holds fonts by family, face, size, bold and italic; colours without
// transparency; underlines and lines through text, raised and lowered text,
// links, PNG and JPEG images; alignment, indents, tab stops, spacing, line
// heights and directions of paragraphs, the filling and padding of the
// innermost text block, and lists. Lengths are rounded to a twentieth of a
// point, font sizes and baseline offsets to half a point. A paragraph ends
// with a line feed, whatever ended it before.
//
// Nothing here keeps state; every function may be called from any thread.
#pragma once

#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

/// The text of an RTF document of any version and code page; nothing when
/// `data` does not start like one or nests more than 65,000 groups.
///
/// What a rich text cannot hold is left out: headers, footnotes, styles by
/// name, drawings, hidden and deleted text. Cells of tables are separated by
/// tabs, rows by line feeds. Items of lists get the markers, indents and stops
/// that rendered lists have. Fields other than links show their last result.
/// An image that `sharedImageDecoder` cannot read shows its alternative text.
/// A font that is not installed keeps its name. A document that is cut off
/// gives the text up to there.
[[nodiscard]] QZ_EXPORT std::optional<RichText> richTextFromRTF(DataView data);

/// The text of what `RichText::RTFD` writes, or of a folder with a "TXT.rtf"
/// and images that was put into a ZIP archive without compression; nothing
/// when there is no such file, or it is no RTF.
[[nodiscard]] QZ_EXPORT std::optional<RichText> richTextFromRTFD(DataView data);

}  // namespace QZCore
