// What a preferences store keeps.
#pragma once

#include <mutex>
#include <string>

#include "QZCore/foundation/preferences.h"
#include "foundation/settings_files.h"

namespace QZCore {

/// The entries and the file behind them. `mutex` guards the entries. `saving`
/// guards the rest and lets one save pass at a time, so that an older state
/// never follows a newer one and a slow disk keeps no reader waiting. Whoever
/// takes both takes `saving` first.
struct Preferences::State {
    std::mutex mutex;
    Dictionary entries;

    std::mutex saving;
    std::string path;
    SettingsFiles files;
};

}  // namespace QZCore
