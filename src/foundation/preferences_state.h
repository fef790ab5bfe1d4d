// What a preferences store keeps.
#pragma once

#include <mutex>
#include <string>

#include "QZCore/foundation/preferences.h"

namespace QZCore {

/// The entries and the file behind them. `mutex` guards everything but the
/// saving itself, so that a slow disk keeps no reader waiting; `saving` lets
/// one save pass at a time, so that an older state never follows a newer one.
/// Whoever takes both takes `saving` first.
struct Preferences::State {
    std::mutex saving;
    std::mutex mutex;
    Dictionary entries;
    std::string path;
    bool fileIsUnreadable = false;
};

}  // namespace QZCore
