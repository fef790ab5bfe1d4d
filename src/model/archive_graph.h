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

    /// Adds the object with the next number. Objects of classes unfold, plain
    /// values do not.
    void addObject(bool isOfClass);

    /// The references of an object, in order.
    [[nodiscard]] std::span<const Number> referencesOf(Number object) const {
        return {references_.data() + starts_[object], starts_[object + 1] - starts_[object]};
    }

    /// The number of objects.
    [[nodiscard]] std::size_t count() const { return isOfClass_.size() - 1; }

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
    std::vector<bool> isOfClass_{false};
};

}  // namespace QZCore
