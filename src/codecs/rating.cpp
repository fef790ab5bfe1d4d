#include <algorithm>

#include "QZCore/codecs/parsing.h"

namespace QZCore {

String stringForRating(int rating, bool withHollowStars) {
    constexpr int kMostStars = 5;
    constexpr char16_t kFilledStar = 0x2605;
    constexpr char16_t kHollowStar = 0x2606;
    String stars(static_cast<std::size_t>(std::clamp(rating, 0, kMostStars)), kFilledStar);
    if (withHollowStars) stars.resize(kMostStars, kHollowStar);
    return stars;
}

}  // namespace QZCore
