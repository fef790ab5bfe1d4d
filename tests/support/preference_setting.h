// Sets a preference for the length of a test.
#pragma once

#include "QZCore/foundation/preferences.h"

namespace QZCore::testing {

/// Holds one key of the shared preferences at a value while it lives.
class PreferenceSetting {
public:
    PreferenceSetting(StringView key, const Value& value)
        : key_(key), before_(Preferences::shared().objectForKey(key)) {
        Preferences::shared().setObject(value, key_);
    }
    ~PreferenceSetting() { Preferences::shared().setObject(before_, key_); }
    PreferenceSetting(const PreferenceSetting&) = delete;
    PreferenceSetting& operator=(const PreferenceSetting&) = delete;

private:
    String key_;
    Value before_;
};

}  // namespace QZCore::testing
