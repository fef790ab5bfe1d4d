// The direction in which the user's language is written.
#pragma once

namespace QZCore {

/// Whether the script of the process's locale runs from right to left.
[[nodiscard]] bool defaultLocaleRunsRightToLeft();

}  // namespace QZCore
