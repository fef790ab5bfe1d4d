#include "bezier/box_tree.h"

namespace QZCore {

BoxTree::BoxTree(std::vector<Box> leaves) : boxes_(std::move(leaves)) {
    counts_[0] = boxes_.size();
    boxes_.reserve(counts_[0] + counts_[0] / (kFanOut - 1) + kMostLevels);
    while (counts_[top_] > kFanOut) {
        const std::size_t first = starts_[top_];
        const std::size_t end = first + counts_[top_];
        starts_[top_ + 1] = end;
        for (std::size_t i = first; i < end; ++i) {
            if ((i - first) % kFanOut == 0) {
                boxes_.push_back(boxes_[i]);
            } else {
                boxes_.back() = unionOf(boxes_.back(), boxes_[i]);
            }
        }
        ++top_;
        counts_[top_] = boxes_.size() - end;
    }
}

std::size_t BoxTree::leafNear(Point point) const {
    std::size_t index = 0;
    for (std::size_t level = top_ + 1; level-- > 0;) {
        const std::size_t end = std::min(index + kFanOut, counts_[level]);
        std::size_t nearest = index;
        for (std::size_t i = index + 1; i < end; ++i) {
            if (squaredDistance(boxAt(level, i), point) <
                squaredDistance(boxAt(level, nearest), point)) {
                nearest = i;
            }
        }
        index = level == 0 ? nearest : nearest * kFanOut;
    }
    return index;
}

}  // namespace QZCore
