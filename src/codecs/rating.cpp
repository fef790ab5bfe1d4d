#include <algorithm>

#include "QZCore/codecs/parsing.h"

namespace QZCore {

String stringForRating(std::int64_t rating, bool withHollowStars) {
    constexpr std::int64_t kMostStars = 5;
    constexpr char16_t kFilledStar = 0x2605;
    constexpr char16_t kHollowStar = 0x2606;
    String stars(static_cast<std::size_t>(std::clamp<std::int64_t>(rating, 0, kMostStars)),
                 kFilledStar);
    if (withHollowStars) stars.resize(kMostStars, kHollowStar);
    return stars;
}

}  // namespace QZCore
