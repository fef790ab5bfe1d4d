// Where the crossings go that are found.
#pragma once

#include <cstdint>
#include <vector>

#include "foundation/single_precision.h"

namespace QZCore {

/// Takes the positions of crossings: into an array, or, without one, the first only.
///
/// Knows as well how much work may still be done for one question. Each pair of curves
/// adds what lying on each other at a size of 1e6 units costs; what larger ones need
/// besides comes from a store that they share.
class CrossingSink {
public:
    CrossingSink() = default;
    explicit CrossingSink(std::vector<float>& positions) : positions_(&positions) {}

    /// Whether that was enough.
    [[nodiscard]] bool add(double position) {
        if (positions_ != nullptr) positions_->push_back(f32(position));
        return positions_ == nullptr;
    }
    void startCurves() { pairsLeft_ += kPairsOfCurves; }
    /// Whether another pair of pieces of the curves may be compared.
    [[nodiscard]] bool startPair() { return pairsLeft_-- > 0; }

private:
    static constexpr std::int64_t kPairsOfCurves = 1 << 13;
    static constexpr std::int64_t kSharedPairs = 1 << 20;

    std::vector<float>* positions_ = nullptr;
    std::int64_t pairsLeft_ = kSharedPairs;
};

}  // namespace QZCore
