// The attribute sets that one text uses, by small numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "QZCore/richtext/text_attributes.h"

namespace QZCore {

/// Numbers attribute sets, so that a run needs four bytes for its attributes
/// and two runs compare by number. A number stays with its set until `keepOnly`
/// frees it.
class AttributePalette {
public:
    /// The number of `attributes`, given now if it had none.
    std::uint32_t idOf(const TextAttributes& attributes);

    /// The set with the number `id`.
    [[nodiscard]] const TextAttributes& at(std::uint32_t id) const { return entries_[id]; }

    /// The numbers that may be in use are below this.
    [[nodiscard]] std::size_t size() const { return entries_.size(); }

    /// How many sets were added since `keepOnly` was last called.
    [[nodiscard]] std::size_t addedSinceCollection() const { return added_; }

    /// Frees the numbers whose flag is not set.
    void keepOnly(const std::vector<bool>& used);

private:
    static constexpr std::uint32_t kNone = UINT32_MAX;

    [[nodiscard]] std::size_t slotOf(const TextAttributes& attributes) const;
    std::uint32_t add(const TextAttributes& attributes);
    void growSlots();

    std::vector<TextAttributes> entries_;
    // The numbers in use, found by the hash of their sets; a power of two, half
    // of them free at least.
    std::vector<std::uint32_t> slots_;
    std::vector<std::uint32_t> free_;
    std::size_t added_ = 0;
    std::uint32_t last_ = kNone;  // a number in use, asked for most recently
};

}  // namespace QZCore
