#include <unicode/locid.h>

#include "platform/locale_direction.h"

namespace QZCore {

bool defaultLocaleRunsRightToLeft() { return icu::Locale::getDefault().isRightToLeft() != 0; }

}  // namespace QZCore
