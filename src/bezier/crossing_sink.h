// Where the crossings go that are found.
#pragma once

#include <vector>

#include "foundation/single_precision.h"

namespace QZCore {

/// Takes the positions of crossings: into an array, or, without one, the first only.
class CrossingSink {
public:
    CrossingSink() = default;
    explicit CrossingSink(std::vector<float>& positions) : positions_(&positions) {}

    /// Whether that was enough.
    [[nodiscard]] bool add(double position) {
        ++count_;
        if (positions_ != nullptr) positions_->push_back(f32(position));
        return positions_ == nullptr;
    }
    [[nodiscard]] std::size_t count() const { return count_; }

private:
    std::vector<float>* positions_ = nullptr;
    std::size_t count_ = 0;
};

}  // namespace QZCore
