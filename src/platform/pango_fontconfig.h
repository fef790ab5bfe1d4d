// Owners for what fontconfig hands out.
#pragma once

#include <fontconfig/fontconfig.h>

#include <memory>

namespace QZCore {

/// Calls fontconfig's own release function.
template <auto release>
struct FontconfigRelease {
    template <class T>
    void operator()(T* object) const {
        release(object);
    }
};

using OwnedFcConfig = std::unique_ptr<FcConfig, FontconfigRelease<FcConfigDestroy>>;
using OwnedFcPattern = std::unique_ptr<FcPattern, FontconfigRelease<FcPatternDestroy>>;
using OwnedFcFontSet = std::unique_ptr<FcFontSet, FontconfigRelease<FcFontSetDestroy>>;

}  // namespace QZCore
