#include "QZCore/foundation/log.h"
#include "foundation/preferences_state.h"

namespace QZCore {

bool Preferences::open(const std::string& path) {
    PropertyListResult file;
    {
        const std::lock_guard saving(state_->saving);
        file = state_->files.read(path);
        state_->path = path;
        const std::lock_guard lock(state_->mutex);
        if (const Dictionary* stored = file.value.dictionary()) {
            for (const auto& [key, value] : *stored) state_->entries.setObject(value, key);
        }
    }
    if (file.error.empty()) return true;
    logLine(u"cannot read preferences from " + fromUTF8(path) + u": " + file.error);
    return false;
}

bool Preferences::save() {
    const std::lock_guard saving(state_->saving);
    return !state_->path.empty() && state_->files.write(state_->path, snapshot());
}

}  // namespace QZCore
