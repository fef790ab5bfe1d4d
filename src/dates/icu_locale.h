// Locales and calendars by their identifiers, as ICU knows them.
#pragma once

#include <unicode/locid.h>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The locale of that name, with `calendar` as its calendar unless that is
/// empty. A name that makes no sense gives the root locale, which has the
/// customs of no country.
[[nodiscard]] icu::Locale icuLocale(StringView identifier, StringView calendar = {});

/// Whether a locale identifier names a language that is known.
[[nodiscard]] bool namesLocale(StringView identifier);

/// Whether there is a calendar of that name, as "japanese".
[[nodiscard]] bool namesCalendar(StringView identifier);

/// The name of the calendar that is in use in a locale.
[[nodiscard]] String calendarOfLocale(StringView identifier);

}  // namespace QZCore
