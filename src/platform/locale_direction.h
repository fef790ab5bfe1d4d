// The direction in which the user's language is written.
#pragma once

namespace QZCore {

/// Whether the language that the user prefers, else that of the user's locale,
/// runs from right to left.
[[nodiscard]] bool userLanguageRunsRightToLeft();

}  // namespace QZCore
