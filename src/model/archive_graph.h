// What refers to what in an archive.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The objects of an archive by their numbers, from 1 on, with the numbers that
/// they refer to. 0 is no object.
class ArchiveGraph {
public:
    using Number = std::uint32_t;

    /// Adds a reference of the object that will be added next.
    void addReference(Number to) { references_.push_back(to); }

    /// What a walk through objects does at one.
    enum class Walk : std::uint8_t {
        Through,  // goes through it to what it refers to, as at a plain value
        Onward,   // the same, and it counts as one more object
        Ended
    };

    /// Adds the object with the next number.
    void addObject(Walk walk);

    /// The references of an object, in order.
    [[nodiscard]] std::span<const Number> referencesOf(Number object) const {
        return {references_.data() + starts_[object], starts_[object + 1] - starts_[object]};
    }

    /// The number of objects.
    [[nodiscard]] std::size_t count() const { return walks_.size() - 1; }

    /// An order, or the reason why there is none.
    struct Order {
        std::vector<Number> objects;
        String fault;
    };

    /// The objects that `root` leads to in an order in which they can be made:
    /// each after those that it refers to. There is none for circles and when
    /// too much unfolds. Every reference must be to an object of the graph.
    [[nodiscard]] Order makingOrder(Number root) const;

private:
    [[nodiscard]] bool unfoldsTooMuch(std::span<const Number> order) const;

    std::vector<Number> references_;
    std::vector<std::size_t> starts_{0, 0};
    std::vector<Walk> walks_{Walk::Through};
};

}  // namespace QZCore
