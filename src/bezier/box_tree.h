// Boxes over boxes: every eight neighbours share one on the level above.
#pragma once

#include <array>
#include <vector>

#include "bezier/box.h"

namespace QZCore {

/// The boxes of a path's elements, in the order of the elements.
class BoxTree {
public:
    BoxTree() = default;
    explicit BoxTree(std::vector<Box> leaves);

    /// Visits the leaves in order whose boxes, and those above them, `enters` lets
    /// in, until `visit` returns true for one; whether it did.
    template <class Enters, class Visit>
    bool visitUntil(Enters enters, Visit visit) const {
        std::size_t level = top_;
        std::size_t index = 0;
        while (index < counts_[level]) {
            if (enters(boxAt(level, index))) {
                if (level > 0) {
                    --level;
                    index *= kFanOut;
                    continue;
                }
                if (visit(index)) return true;
            }
            ++index;
            while (level < top_ && index % kFanOut == 0) {
                ++level;
                index /= kFanOut;
            }
        }
        return false;
    }

    /// The leaf that is reached by always going on to the closest box.
    [[nodiscard]] std::size_t leafNear(Point point) const;

private:
    static constexpr std::size_t kFanOut = 8;
    static constexpr std::size_t kMostLevels = 11;  // of 8^11 leaves

    [[nodiscard]] const Box& boxAt(std::size_t level, std::size_t index) const {
        return boxes_[starts_[level] + index];
    }

    std::vector<Box> boxes_;  // level by level, the leaves first
    std::array<std::size_t, kMostLevels> starts_{};
    std::array<std::size_t, kMostLevels> counts_{};
    std::size_t top_ = 0;
};

}  // namespace QZCore
