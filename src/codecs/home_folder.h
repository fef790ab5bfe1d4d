// The user's home folder.
#pragma once

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The home folder of the process's user in the user database, read once;
/// empty when the database does not know the user.
[[nodiscard]] const String& homeFolderOfUser();

}  // namespace QZCore
