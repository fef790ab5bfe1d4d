// A time zone for ICU's formatters that has the system's rules: those built into
// ICU are as old as ICU.
#pragma once

#include <unicode/timezone.h>

#include <memory>

#include "QZCore/platform/time_zone.h"

namespace QZCore {

/// `zone` in the form that ICU uses. It answers by the rules of `zone` and is
/// named by ICU.
[[nodiscard]] std::unique_ptr<icu::TimeZone> icuTimeZone(std::shared_ptr<const TimeZone> zone);

}  // namespace QZCore
