// The runs of a text as they are without the look of links and without the
// font of colour emoji: both belong to what stands in the text, not to its
// formatting.
#pragma once

#include "QZCore/richtext/rich_text.h"
#include "richtext/flat_text.h"

namespace QZCore {

/// The face that shows colour emoji.
inline constexpr StringView kColorEmojiFace = u"AppleColorEmoji";

/// Whether the attributes name that face.
[[nodiscard]] bool hasColorEmojiFont(const TextAttributes& attributes);

/// Takes the link from each run that has one, and gives the run the foreground
/// colour and the underline style of its neighbour, or none where there is no
/// neighbour. That is the run before it, as it is by then; for the first run
/// the one behind it, unless that starts at the last unit or later. Returns
/// whether there was a link.
bool removeLinkFormatting(FlatRuns& text);

/// Gives each stretch of colour emoji, of whatever sizes, the font of its
/// neighbour, found in the same way, or no font. Returns whether there was such
/// a stretch.
bool removeColorEmojiFonts(FlatRuns& text);

/// The runs of `text` after both, as far as a flat text reaches.
[[nodiscard]] FlatRuns cleanedRuns(const RichText& text);

}  // namespace QZCore
