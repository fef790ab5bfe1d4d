#include "QZCore/dates/rating_formatter.h"

#include <algorithm>

namespace QZCore {

String QZRatingFormatter::stringForObjectValue(const Value& object) const {
    constexpr std::int64_t kMostStars = std::int64_t{1} << 24;
    constexpr char16_t kFilledStar = 0x2605;
    if (!object.isNumber()) return {};
    const std::int64_t stars = std::clamp<std::int64_t>(object.integerValue(), 0, kMostStars);
    return String(static_cast<std::size_t>(stars), kFilledStar);
}

bool QZRatingFormatter::getObjectValue(Value& /*object*/, StringView /*forString*/,
                                       String* errorDescription) const {
    if (errorDescription != nullptr) *errorDescription = u"Unable to set the rating.";
    return false;
}

}  // namespace QZCore
