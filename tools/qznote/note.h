// A note: from the bytes of a file to rendered text.
#pragma once

#include "QZCore/foundation/data.h"
#include "QZCore/markdown/style_sheet.h"
#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// The text of a note in UTF-8, with line feeds as its only line ends, without a
/// byte-order mark, and with code, lists and quotations that were written for
/// other dialects as this one knows them.
[[nodiscard]] QZCore::String noteText(QZCore::DataView bytes);

/// The attributes of unmarked text: the user's font and what the style sheet
/// says of the body.
[[nodiscard]] QZCore::TextAttributes baseAttributes(const QZCore::StyleSheet& styles);

/// The note rendered, with fonts for code and a colour for links that suit this
/// platform. Lists may be indented by 2, 3 or 4 blanks a level, as the note
/// shows. Images are fetched through the shared loader.
[[nodiscard]] QZCore::RichText renderedNote(QZCore::StringView note,
                                            const QZCore::StyleSheet& styles);

}  // namespace qznote
