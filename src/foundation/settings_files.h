// The property-list files behind a store of settings.
#pragma once

#include <string>
#include <vector>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/property_list.h"

namespace QZCore {

/// Reads and writes files that hold one dictionary each, and remembers which of
/// them could not be read: their contents may be all that the user has, so they
/// are never written over.
class SettingsFiles {
public:
    /// The dictionary in the file at `path`, an empty one when there is no such
    /// file; for an unreadable file an absent value and the reason.
    [[nodiscard]] PropertyListResult read(const std::string& path);

    /// Replaces the file at `path`, or makes it, as `writeFileAtomically` does.
    /// A file that could not be read stays beside it under the first free name
    /// of "NAME.unreadable-1" and so on.
    [[nodiscard]] bool write(const std::string& path, const Dictionary& entries);

private:
    std::vector<std::string> unreadable_;  // by their own names, whatever links lead there
};

}  // namespace QZCore
